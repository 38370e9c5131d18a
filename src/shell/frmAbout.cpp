#include "frmAbout.h"

#include "Desktop.h"
#include "Globals.h"
#include "Programs.h"
#include "Registry.h"
#include "paths.h"

#include <cstdio>
#include <exception>
#include <filesystem>

namespace fleetwright {

namespace {

/// The number of a value of four bytes, which is kept with its lowest byte first. Each byte adds
/// its digits without leading zeros.
std::string numberText(const std::string& bytes) {
    std::string digits = "0";
    for (const char byte : std::string(bytes.rbegin(), bytes.rend())) {
        char two[3];
        std::snprintf(two, sizeof two, "%X",
                      static_cast<unsigned>(static_cast<unsigned char>(byte)));
        digits += two;
    }
    return std::to_string(static_cast<std::int32_t>(std::stoul(digits, nullptr, 16)));
}

}  // namespace

frmAbout::frmAbout(Services services)
    : Form({.name = "frmAbout", .caption = "About MyApp", .width = 5730, .height = 2565}),
      m_services(services) {}

void frmAbout::Form_Load() {
    setCaption(std::string("About ") + productName);
    lblVersion.setCaption("Version " FLEETWRIGHT_VERSION);
    lblTitle.setCaption(applicationTitle);
}

void frmAbout::StartSysInfo() {
    bool isStarted = false;
    try {
        isStarted = startTool();
    } catch (const std::exception&) {
        // Whatever goes wrong, the tool is not there.
    }
    if (!isStarted) {
        m_services.desktop.showMessage("System Information Is Unavailable At This Time");
    }
}

bool frmAbout::startTool() {
    std::string path;
    if (GetKeyValue("SOFTWARE\\Microsoft\\Shared Tools\\MSINFO", "PATH", path)) {
        return m_services.programs.start(nativePath(path));
    }
    if (!GetKeyValue("SOFTWARE\\Microsoft\\Shared Tools Location", "MSINFO", path)) {
        return false;
    }
    const std::filesystem::path tool = nativePath(path) / "MSINFO32.EXE";
    return std::filesystem::exists(tool) && m_services.programs.start(tool);
}

bool frmAbout::GetKeyValue(const std::string& KeyName, const std::string& SubKeyRef,
                           std::string& KeyVal) {
    const std::optional<Registry::Value> value = m_services.registry.read(KeyName, SubKeyRef);
    if (!value) {
        KeyVal.clear();
        return false;
    }
    std::string text = value->bytes;
    if (text.ends_with('\0')) {
        text.pop_back();
    }
    if (value->type == Registry::textType) {
        KeyVal = text;
    } else if (value->type == Registry::numberType) {
        KeyVal = numberText(text);
    }
    return true;
}

}  // namespace fleetwright
