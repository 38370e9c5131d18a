#include "frmSSDView.h"

#include "Desktop.h"
#include "Fault.h"
#include "PictureFiles.h"
#include "paths.h"
#include "text.h"

namespace fleetwright {

namespace {

constexpr int emptyWidth = 3045, emptyHeight = 825;

}  // namespace

frmSSDView::frmSSDView(Services services)
    : Form({.name = "frmSSDView",
            .caption = "View SSD",
            .width = emptyWidth,
            .height = emptyHeight,
            .border = Border::Sizable}),
      m_services(std::move(services)) {}

void frmSSDView::Form_Load() {
    // Whatever an earlier use has left.
    chkCancel.setTicked(false);
    setState(WindowState::Normal);
    picImage.setPicture({});
    picImage.setPlace(emptyBox);
    picImage.setToolTip("");
    keys.offer({});
    keys.say("");
    resize(emptyWidth + frameWidth, emptyHeight + frameHeight);
    fitWindow();
}

/// A resize that this causes comes back here and finds nothing left to do.
void frmSSDView::fitWindow() {
    if (state() != WindowState::Normal) {
        return;
    }
    constexpr int besides = 200;
    const int below = 500 + keys.lineHeight();
    const Place& commands = fraCommands.place();
    if (commands.left + commands.width + besides > width()) {
        resize(commands.width + commands.left + besides, height());
    }
    const Place& image = picImage.place();
    if (image.left + image.width + besides > width()) {
        resize(image.width + image.left + besides, height());
    }
    if (image.top + image.height + below > height()) {
        resize(width(), image.height + image.top + below);
    }
}

void frmSSDView::cmdSelect_Click() {
    std::optional<std::string> file;
    try {
        file = m_services.desktop.chooseFileToOpen(pictureDialog(m_services.appFolder / "ssds"));
        if (!file || file->empty()) {
            return;
        }
        picImage.setPicture(m_services.pictures.load(nativePath(*file)).shared());
        picImage.setToolTip(shownText(*file) + '\n' + SheetKeys::help);
        if (m_services.actsFor) {
            keys.offer(m_services.actsFor(nativePath(*file), picImage.picture()));
        }
        cmdSelect.setToolTip("");
        say("");
    } catch (const std::exception& error) {
        const std::string what =
            picImage.picture().isEmpty() ? "No picture is shown: " : "Still the picture before: ";
        const std::string fault = what + quote(file.value_or("")) + " " + error.what();
        cmdSelect.setToolTip(fault);
        say(fault);
    }
}

void frmSSDView::say(const std::string& text) {
    keys.say(text);
    fitWindow();
}

/// Its release, when the window opens anew, closes nothing.
void frmSSDView::chkCancel_Click() {
    if (chkCancel.isTicked()) {
        unload();
    }
}

}  // namespace fleetwright
