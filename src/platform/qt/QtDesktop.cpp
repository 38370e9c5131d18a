#include "QtDesktop.h"

#include "Error.h"
#include "Form.h"
#include "FormWindow.h"
#include "Menu.h"
#include "SettingsStore.h"
#include "contrast.h"
#include "controlWidgets.h"
#include "text.h"
#include "wholeNumber.h"
#include "widgetTools.h"

#include <QApplication>
#include <QCursor>
#include <QDesktopServices>
#include <QEventLoop>
#include <QFileDialog>
#include <QHeaderView>
#include <QMessageBox>
#include <QScreen>
#include <QTreeView>
#include <QUrl>
#include <QWhatsThis>

#include <algorithm>

namespace fleetwright {

namespace {

/// "Ship Files(*.shp)|*.shp" and the like as Qt writes it, with the pattern in brackets behind the
/// label, which may end in brackets of its own.
QStringList nameFilters(const std::string& filter) {
    const QStringList parts = toQt(filter).split('|');
    QStringList filters;
    for (qsizetype i = 0; i < parts.size(); i += 2) {
        const QString pattern = parts.value(i + 1);
        const bool isAll = pattern.isEmpty() || pattern == "*.*";
        filters += parts[i] + " (" + (isAll ? QString("*") : pattern) + ')';
    }
    return filters;
}

/// Gives the columns of Qt's own file dialog, which a desktop without one shows, the room that
/// their texts need: it would cut sizes and dates short.
void widenColumns(QFileDialog& dialog) {
    auto* const list = dialog.findChild<QTreeView*>("treeView");
    if (list == nullptr) {
        return;
    }
    QHeaderView& header = *list->header();
    for (int column = 1; column < header.count(); ++column) {
        header.setSectionResizeMode(column, QHeaderView::ResizeToContents);
    }
    header.setSectionResizeMode(0, QHeaderView::Stretch);
    constexpr QSize comfortable(760, 460);
    dialog.resize(dialog.size().expandedTo(comfortable));
}

void prepareDialog(QFileDialog& dialog, const FileDialog& wanted) {
    dialog.setObjectName("fileDialog");
    dialog.setPalette(readableColours(QApplication::palette()));
    dialog.setOption(QFileDialog::HideNameFilterDetails);  // the labels show as they were written
    dialog.setNameFilters(nameFilters(wanted.filter));
    dialog.selectNameFilter(dialog.nameFilters().value(wanted.filterIndex - 1));
    dialog.setDirectory(toQt(wanted.initialFolder.string()));
    dialog.selectFile(toQt(wanted.fileName));
    widenColumns(dialog);
}

/// The existing files that the user chooses in a dialog; none when that was cancelled.
QStringList chosenFiles(const FileDialog& wanted, QFileDialog::FileMode mode) {
    QFileDialog dialog(QApplication::activeWindow(), "Open");
    prepareDialog(dialog, wanted);
    dialog.setFileMode(mode);
    return dialog.exec() == QDialog::Accepted ? dialog.selectedFiles() : QStringList();
}

/// What is added to a name that does not say which kind of file is meant.
QString missingEnding(const QFileDialog& dialog, const FileDialog& wanted, const QString& chosen) {
    const auto says = [&chosen](const std::string& ending) {
        return chosen.endsWith(toQt(ending), Qt::CaseInsensitive);
    };
    if (std::any_of(wanted.endings.begin(), wanted.endings.end(), says)) {
        return {};
    }
    // Qt's own dialog says the label alone, the desktop's the whole filter.
    const QString selected = dialog.selectedNameFilter();
    const QStringList filters = dialog.nameFilters();
    for (std::size_t pair = 0; pair < wanted.endings.size(); ++pair) {
        const QString filter = filters.value(static_cast<qsizetype>(pair));
        if (filter == selected || filter.startsWith(selected + " (")) {
            return toQt(wanted.endings[pair]);
        }
    }
    return {};
}

/// Whether a file may be written that the dialog itself has not asked about, because the rules add
/// their extension to its name.
bool mayReplace(const QString& chosen, const QString& extension) {
    const QString file = chosen + extension;
    if (extension.isEmpty() || chosen.endsWith(extension) || !QFileInfo::exists(file)) {
        return true;
    }
    QMessageBox box(QMessageBox::Warning, QApplication::applicationName(),
                    toQt(shownText(file.toStdString())) +
                        " already exists.\nDo you want to replace it?",
                    QMessageBox::Yes | QMessageBox::No, QApplication::activeWindow());
    box.setPalette(readableColours(QApplication::palette()));
    box.setTextFormat(Qt::PlainText);  // the name in it is no markup
    box.setDefaultButton(QMessageBox::No);
    return box.exec() == QMessageBox::Yes;
}

}  // namespace

QtDesktop::QtDesktop(WhatsThisText whatsThis) : m_whatsThis(std::move(whatsThis)) {}

QtDesktop::~QtDesktop() = default;

void QtDesktop::equip(SettingsStore& settings, const Drawings& drawings) {
    m_settings = &settings;
    m_drawings = &drawings;
}

/// Zooms a form as far as its user has zoomed it last, or `otherwise`, and keeps what comes.
Connection QtDesktop::keepZoom(Form& form, Zoom otherwise) {
    if (m_settings == nullptr) {
        return {};
    }
    constexpr const char* section = "Zoom";
    try {
        form.setZoom(Zoom(wholeNumber(
            m_settings->read(section, form.name(), std::to_string(otherwise.percent())))));
    } catch (const Error&) {
        // It has the size then that it had last in this run.
    }
    return form.Zoomed.connect([this, &form] {
        try {
            m_settings->write(section, form.name(), std::to_string(form.zoom().percent()));
        } catch (const FileError&) {
            // It holds as long as the program runs.
        }
    });
}

void QtDesktop::present(Form& form) {
    Presented& presented = m_presented[&form];
    const auto makeWhenShown = [this, &presented, &form] {
        // A window that comes moves its form, which asks for a window again.
        if (form.isVisible() && !presented.isMade) {
            presented.isMade = true;
            presented.zoomed = keepZoom(form);
            presented.window = std::make_unique<FormWindow>(form, nullptr, m_whatsThis, m_drawings);
        }
    };
    makeWhenShown();
    presented.changed = form.Changed.connect(makeWhenShown);
}

void QtDesktop::dismiss(Form& form) {
    m_presented.erase(&form);
}

Answer QtDesktop::showMessage(const std::string& text, const std::string& title, Buttons buttons,
                              Icon icon) {
    QMessageBox box(QApplication::activeWindow());
    box.setObjectName("messageBox");
    box.setPalette(readableColours(QApplication::palette()));
    box.setWindowTitle(title.empty() ? QApplication::applicationName() : toQt(shownText(title)));
    box.setTextFormat(Qt::PlainText);  // names in it are no markup
    box.setText(toQt(shownLines(text)));
    switch (icon) {
    case Icon::None:
        break;
    case Icon::Information:
        box.setIcon(QMessageBox::Information);
        break;
    case Icon::Critical:
        box.setIcon(QMessageBox::Critical);
        break;
    }
    if (buttons == Buttons::Ok) {
        box.setStandardButtons(QMessageBox::Ok);
        box.exec();
        return Answer::Ok;
    }
    box.setStandardButtons(QMessageBox::Yes | QMessageBox::No);
    box.setEscapeButton(QMessageBox::No);
    return box.exec() == QMessageBox::Yes ? Answer::Yes : Answer::No;
}

std::optional<std::string> QtDesktop::chooseFileToOpen(const FileDialog& wanted) {
    const QStringList chosen = chosenFiles(wanted, QFileDialog::ExistingFile);
    return chosen.isEmpty() ? std::nullopt : std::optional(pathFromQt(chosen.front()));
}

std::vector<std::string> QtDesktop::chooseFilesToOpen(const FileDialog& wanted) {
    std::vector<std::string> files;
    for (const QString& file : chosenFiles(wanted, QFileDialog::ExistingFiles)) {
        files.push_back(pathFromQt(file));
    }
    return files;
}

std::optional<std::string> QtDesktop::chooseFileToSave(const FileDialog& wanted) {
    QFileDialog dialog(QApplication::activeWindow(), "Save As");
    prepareDialog(dialog, wanted);
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    const QString extension = toQt(wanted.extension);
    while (dialog.exec() == QDialog::Accepted) {
        const QString chosen = dialog.selectedFiles().value(0);
        const QString ending = missingEnding(dialog, wanted, chosen);
        if (mayReplace(chosen, ending.isEmpty() ? extension : ending)) {
            return pathFromQt(chosen + ending);
        }
    }
    return std::nullopt;
}

/// The window in which a control stands, if it has been made.
const QWidget* QtDesktop::windowWith(const Control& control) const {
    const Control* form = &control;
    while (form->container() != nullptr) {
        form = form->container();
    }
    for (const auto& [each, presented] : m_presented) {
        if (each == form) {
            return presented.window.get();
        }
    }
    return nullptr;
}

void QtDesktop::popUp(MenuEntry& menu) {
    // A menu that was asked for by a key opens at what has the keyboard in the menu's own window:
    // the icon of a window in the tray is clicked while the keyboard is elsewhere.
    const QWidget* const window = windowWith(menu);
    const QWidget* const focus = QApplication::focusWidget();
    const bool isByPointer = focus == nullptr || focus->underMouse() || focus->window() != window ||
                             QApplication::mouseButtons() != Qt::NoButton;
    if (window != nullptr) {
        popUpMenu(menu, isByPointer ? QCursor::pos() : focus->mapToGlobal(focus->rect().center()),
                  *window);
    }
}

void QtDesktop::showModal(Form& form, Form& owner) {
    const auto presented = m_presented.find(&owner);
    const Connection zoomed = keepZoom(form, owner.zoom());
    FormWindow window(form,
                      presented == m_presented.end() ? nullptr : presented->second.window.get(),
                      m_whatsThis, m_drawings);
    QEventLoop loop;
    const Connection ended = form.Changed.connect([&] {
        if (!form.isVisible()) {
            loop.quit();
        }
    });
    m_dialogs.push_back(&form);
    form.show();
    if (form.isVisible()) {
        loop.exec();
    }
    std::erase(m_dialogs, &form);
}

void QtDesktop::askWhatsThis() {
    QWhatsThis::enterWhatsThisMode();
}

bool QtDesktop::openDocument(const std::filesystem::path& document) {
    return QDesktopServices::openUrl(QUrl::fromLocalFile(toQt(document.string())));
}

void QtDesktop::unloadAllForms() {
    std::vector<Form*> forms = m_dialogs;
    for (const auto& [form, presented] : m_presented) {
        forms.push_back(form);
    }
    for (Form* const form : forms) {
        form->unload();  // the one that is going already is left alone
    }
    // Without asking the windows again, as a quit does: one that has something to end first closes
    // itself then.
    QApplication::exit();
}

Desktop::ScreenSize QtDesktop::screenSize() {
    const QSize size = QApplication::primaryScreen()->size();
    return {size.width(), size.height()};
}

}  // namespace fleetwright
