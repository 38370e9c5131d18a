#pragma once

#include "QtPictureFiles.h"
#include "SilentServices.h"

#include <filesystem>

namespace fleetwright {

/// An application folder of this run's own: the delivered catalogue, or one with so many records,
/// and the pictures, unpacked.
std::filesystem::path benchApplication(int records = 0);

/// A loaded main window on a desktop where nothing is shown or chosen. Whoever wants it drawn
/// attaches a FormWindow. Needs no application, but pictures that QImage can read.
class BenchWindow {
public:
    explicit BenchWindow(const std::filesystem::path& appFolder);

    frmMain& form() { return m_form; }

private:
    QtPictureFiles m_pictures;
    SilentServices m_silent;
    frmMain m_form;
};

}  // namespace fleetwright
