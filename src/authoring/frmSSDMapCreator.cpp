#include "frmSSDMapCreator.h"

#include "Clock.h"
#include "Desktop.h"
#include "Error.h"
#include "OutlineScan.h"
#include "PictureFiles.h"
#include "SSDMap.h"
#include "SSDMapCheck.h"
#include "SSDMaps.h"
#include "checkMapPlaces.h"
#include "checkedArithmetic.h"
#include "paths.h"
#include "saveFile.h"
#include "text.h"

#include <algorithm>
#include <cmath>
#include <iterator>
#include <memory>

namespace fleetwright {

namespace {

constexpr int creatorWidth = 5790, creatorHeight = 5565;

constexpr std::string_view mapExtension = ".map";

/// The name that players choose a map file by.
std::string displayName(std::string_view file) {
    const std::string_view path = file.substr(0, file.size() - mapExtension.size());
    return std::string(trimmed(path.substr(path.find_last_of("\\/") + 1)));
}

/// What an author may not have meant in the map of a scan; what is about all of it comes first.
std::string remarks(const std::string& map, const Raster& outline,
                    const std::filesystem::path& appFolder) {
    constexpr std::size_t mostSaid = 4, mostPlaces = 1000;
    const MapPlaces places = readMapPlaces(map);
    if (places.places.size() > mostPlaces) {
        return "more than " + std::to_string(mostPlaces) + " places, which no map needs";
    }
    std::vector<Fault> faults = checkMapFile(map, appFolder);
    std::ranges::move(checkMapPlaces(places, outline), std::back_inserter(faults));
    sortByLine(faults);
    std::ranges::stable_partition(faults, [](const Fault& fault) { return fault.line == 0; });
    std::string text;
    std::size_t said = 0;
    for (; said < faults.size() && said < mostSaid; ++said) {
        const Fault& fault = faults[said];
        text += (text.empty() ? "" : "; ") +
                (fault.line == 0 ? "" : "line " + std::to_string(fault.line) + ": ") + fault.text;
    }
    if (said < faults.size()) {
        text += "; and " + std::to_string(faults.size() - said) + " more";
    }
    return text;
}

}  // namespace

frmSSDMapCreator::frmSSDMapCreator(Services services)
    : Form({.name = "frmSSDMapCreator",
            .caption = "SSD Map Creator",
            .width = creatorWidth,
            .height = creatorHeight}),
      m_services(std::move(services)) {}

void frmSSDMapCreator::Form_Load() {
    // Whatever an earlier use has left: the window opens without a picture and a text.
    m_isClosing = false;
    say("");
    selectNothing("No picture is selected yet");
    cmdDoit.setEnabled(true);
    chkCancel.setTicked(false);
    picImage.setPicture({});
    picImage.setPlace(pictureBox);
    txtOutput.setPlace(textBox);
    txtOutput.setText("");
    m_safeText.clear();
    resize(creatorWidth + frameWidth, creatorHeight + frameHeight);
    show();
}

void frmSSDMapCreator::Form_Unload(bool& cancel) {
    if (m_isScanning) {
        cancel = true;
        m_isClosing = true;  // when the scan has ended
        chkCancel.setTicked(true);
    } else if (isTextEdited() &&
               m_services.desktop.showMessage("The map has been edited. Save it?", "Map not saved!",
                                              Buttons::YesNo, Icon::Information) == Answer::Yes) {
        cmdSaveIt_Click();
        cancel = isTextEdited();
    }
}

/// Whether somebody has written what neither a file nor a scan would bring back.
bool frmSSDMapCreator::isTextEdited() const {
    const std::string& text = txtOutput.text();
    return text != m_safeText && text.find_first_not_of(" \t\r\n") != std::string::npos;
}

void frmSSDMapCreator::cmdSelect_Click() {
    std::optional<std::string> file;
    try {
        file =
            m_services.desktop.chooseFileToOpen(pictureDialog(m_services.appFolder / "shipimages"));
        if (!file || file->empty()) {
            say("No picture is selected");
            return selectNothing("No picture is selected");
        }
        resetImage(loadImage(*file));
    } catch (const std::exception& error) {
        return refuse(file.value_or(""), error);
    }
    say("");
    m_sImageFile = *file;
    cmdDoit.setEnabled(true);
    picImage.setToolTip(shownText(m_sImageFile));
    cmdDoit.setToolTip("Makes the map of " + shownText(m_sImageFile));
}

/// Says why a file is none that can be scanned.
void frmSSDMapCreator::refuse(const std::string& file, const std::exception& error) {
    const std::string why = "No picture is selected: " + quote(file) + " " + error.what();
    say(why);
    selectNothing(why);
}

/// Says something at the lower edge of the window, which makes room for it.
void frmSSDMapCreator::say(const std::string& text) {
    const int before = sbCreator.roomTaken();
    sbCreator.showOnlyWith(text);
    resize(width(), height() + sbCreator.roomTaken() - before);
}

/// The picture on show stays, so that what is said of it has to say that it no longer counts.
void frmSSDMapCreator::selectNothing(const std::string& why) {
    m_sImageFile.clear();
    cmdDoit.setEnabled(false);
    cmdDoit.setToolTip(why);
    picImage.setToolTip(why);
}

/// Throws Error.
Raster frmSSDMapCreator::loadImage(const std::string& file) const {
    Raster picture = m_services.pictures.load(nativePath(file));
    [[maybe_unused]] const OutlineScan tried(picture, file);  // refuses what no map can hold
    return picture;
}

Raster frmSSDMapCreator::currentImage() const {
    return m_sImageFile.empty() ? Raster() : loadImage(m_sImageFile);
}

void frmSSDMapCreator::resetImage(Raster picture) {
    chkCancel.setTicked(false);
    picImage.setPicture(std::move(picture));
    fitWindow();
}

void frmSSDMapCreator::fitWindow() {
    constexpr int gap = 100, margin = 500;
    const Place& image = picImage.place();
    const Place& text = txtOutput.place();
    txtOutput.setPlace({image.width + image.left + gap, text.top, text.width, image.height});
    resize(text.width + margin + image.width + gap,
           image.height + image.top + margin + sbCreator.roomTaken());
}

/// What is scanned where no picture is selected.
Raster frmSSDMapCreator::emptyBox() const {
    const auto pixels = [this](int twips) {
        return narrow<std::int16_t>(
            std::lrint(static_cast<float>(twips / picImage.screenTwipsPerPixel())));
    };
    return {pixels(picImage.place().width), pixels(picImage.place().height)};
}

void frmSSDMapCreator::cmdDoit_Click() {
    if (m_isScanning) {
        return;
    }
    try {
        resetImage(currentImage());
        if (picImage.picture().isEmpty()) {
            picImage.setPicture(emptyBox());
        }
    } catch (const Error& error) {
        return refuse(m_sImageFile, error);
    }
    say("");
    OnTop();
    setScanning(true);
    txtOutput.clear();
    const bool isWhole = scan();
    setScanning(false);
    if (!isWhole) {
        chkCancel.setTicked(false);
    }
    try {
        picImage.setPicture(currentImage());
        if (isWhole && !m_sImageFile.empty()) {
            say(remarks(txtOutput.text(), picImage.picture(), m_services.appFolder));
        }
    } catch (const Error& error) {
        refuse(m_sImageFile, error);
    }
    if (!isWhole) {
        txtOutput.clear();
        txtOutput.append("Operation Cancelled");
    }
    m_safeText = txtOutput.text();
    notOnTop();
    if (m_isClosing) {
        unload();
    }
}

/// Scans the picture on show and paints its progress there, which is always behind what is still
/// to be read; false if it was cancelled.
bool frmSSDMapCreator::scan() {
    // Pending events may take long, and a turn of them costs more than many pixels.
    constexpr std::uint32_t shortestSlice = 20, longestSlice = 60;  // milliseconds
    OutlineScan progress(picImage.picture(), m_sImageFile);
    std::size_t shown = 0;
    const auto showText = [&] {
        txtOutput.append(progress.text().substr(shown));
        shown = progress.text().size();
    };
    int sinceLook = 0;
    const auto afterStretch = [&](int x, int y, int count) {
        picImage.paintStretch(x, y, count, Black);
        sinceLook += count;
        const bool isMuchText = progress.text().size() - shown > textToATurn;
        if (sinceLook < pixelsToALook && !isMuchText) {
            return true;
        }
        sinceLook = 0;
        const std::uint32_t slice = std::clamp(m_turnLength, shortestSlice, longestSlice);
        if (!isMuchText && ticksBetween(m_lastTurn, m_services.clock.tickCount()) < slice) {
            return true;
        }
        showText();
        return giveTurn();
    };
    if (!giveTurn() || !progress.runInStretches(afterStretch)) {
        return false;
    }
    showText();
    return true;
}

/// Shows the progress and lets the user act; whether to go on.
bool frmSSDMapCreator::giveTurn() {
    const std::int32_t start = m_services.clock.tickCount();
    picImage.showPainted();
    m_services.eventLoopTurn();
    m_lastTurn = m_services.clock.tickCount();
    m_turnLength = ticksBetween(start, m_lastTurn);
    return !chkCancel.isTicked() && !m_isClosing;
}

void frmSSDMapCreator::setScanning(bool isScanning) {
    m_isScanning = isScanning;
    for (Control* const control :
         std::initializer_list<Control*>{&cmdSelect, &cmdDoit, &cmdSaveIt}) {
        control->setEnabled(!isScanning);
    }
    txtOutput.setLocked(isScanning);  // it is to be read meanwhile
}

void frmSSDMapCreator::cmdSaveIt_Click() {
    std::string file;
    try {
        file = m_services.desktop
                   .chooseFileToSave({.filter = "All Files (*.*)|*.*|SSD Maps(*.map)|*.map",
                                      .filterIndex = 2,
                                      .initialFolder = m_services.appFolder / "maps",
                                      .fileName = suggestedName(),
                                      .extension = std::string(mapExtension)})
                   .value_or("");
        if (file.empty()) {
            return;
        }
        if (!file.ends_with(mapExtension)) {
            file += mapExtension;
        }
        if (maySave(m_services.desktop, nativePath(file))) {
            saveMap(file);
        }
    } catch (const std::exception& error) {
        const std::string fault = "Not saved: " + quote(file) + " " + error.what();
        cmdSaveIt.setToolTip(fault);
        say(fault);
    }
}

/// That of the picture, whose map it is.
std::string frmSSDMapCreator::suggestedName() const {
    return m_sImageFile.empty()
               ? ""
               : pathText(nativePath(m_sImageFile).stem()) + std::string(mapExtension);
}

void frmSSDMapCreator::saveMap(const std::string& file) {
    saveFile(nativePath(file), mapFileContents(txtOutput.text()));
    m_safeText = txtOutput.text();
    cmdSaveIt.setToolTip("Saved as " + shownText(file));
    say("Saved as " + shownText(pathText(nativePath(file).filename())) + ": " + offer(file));
}

/// Offers the map in a file for sheets, and says for which.
std::string frmSSDMapCreator::offer(const std::string& file) {
    std::error_code unknown;
    if (!std::filesystem::equivalent(nativePath(file).parent_path(), m_services.appFolder / "maps",
                                     unknown)) {
        return "maps are offered from the folder maps alone";
    }
    const std::string name = displayName(file);
    if (m_services.g_colSSDMaps.contains(name)) {
        return "it takes the place of the former map at the next start";
    }
    try {
        auto map = std::make_shared<SSDMap>(m_services.appFolder);
        map->ImageFile(name);
        const std::int16_t most = map->iMaxMass;
        m_services.g_colSSDMaps.add(std::move(map));
        return most > 0 ? "offered for ships up to mass " + std::to_string(most)
                        : "offered for no ship, for want of a SIZE";
    } catch (const Error& error) {
        return std::string("not offered, ") + error.what();
    }
}

}  // namespace fleetwright
