#pragma once

#include "DrawingPack.h"
#include "Error.h"
#include "Form.h"
#include "FormWindow.h"
#include "QtDesktop.h"

#include <QApplication>
#include <QPixmap>

#include <filesystem>
#include <memory>
#include <optional>
#include <string>
#include <utility>

namespace fleetwright {

/// A desktop that takes a picture of each dialog and cancels it. Of files it chooses one.
class PictureDesktop : public QtDesktop {
public:
    PictureDesktop(const std::filesystem::path& pictures, std::filesystem::path folder)
        : m_drawings(drawingsFile(pictures)), m_folder(std::move(folder)) {}

    std::filesystem::path choice;
    std::string ending;  ///< of all names, for a state of the desktop
    Zoom zoom;           ///< of all windows that come

    std::optional<std::string> chooseFileToOpen(const FileDialog&) override {
        return choice.string();
    }

    void showModal(Form& form, Form&) override {
        form.load();
        const std::unique_ptr<FormWindow> window = windowOf(form);
        form.show();
        take(*window, form.name());
        form.unload();
    }

    std::unique_ptr<FormWindow> windowOf(Form& form) const {
        form.setZoom(zoom);
        return std::make_unique<FormWindow>(form, nullptr, WhatsThisText(), &m_drawings);
    }

    void take(QWidget& window, const std::string& name) const {
        QApplication::processEvents();
        const std::filesystem::path file = m_folder / (name + ending + ".png");
        if (!window.grab().save(QString::fromStdString(file.string()))) {
            throw FileError(file, "cannot be saved");
        }
    }

private:
    DrawingPack m_drawings;
    std::filesystem::path m_folder;
};

}  // namespace fleetwright
