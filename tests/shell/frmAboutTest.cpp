#include "frmAbout.h"

#include "Programs.h"
#include "Registry.h"
#include "TemporaryFolder.h"
#include "fakeServices.h"

#include <gtest/gtest.h>

#include <map>

using namespace fleetwright;

namespace {

namespace fs = std::filesystem;

class Machine : public Programs, public Registry {
public:
    std::string log;
    std::map<std::string, Value> values;
    std::string startable;

    bool run(const fs::path&, const std::string&, const fs::path&, int,
             const std::function<void()>&) override {
        return false;
    }
    bool start(const fs::path& program) override {
        log += "start " + program.filename().string() + "; ";
        return program.filename() == startable;
    }
    void* loadLibrary(const fs::path&) override { return nullptr; }
    void* function(void*, const std::string&) override { return nullptr; }
    void freeLibrary(void*) override {}

    std::optional<Value> read(const std::string& key, const std::string& name) override {
        const auto found = values.find(key + '|' + name);
        return found == values.end() ? std::nullopt : std::optional(found->second);
    }
};

const std::string unavailable = "System Information Is Unavailable At This Time/; ";

TEST(FrmAbout, SaysWhatItIsAndLooksForTheToolInTwoPlaces) {
    Machine machine;
    ChoosingDesktop desktop;
    frmAbout about({.desktop = desktop, .programs = machine, .registry = machine});
    about.show();
    EXPECT_EQ(about.caption(), "About Iron Vector Ship Creator");
    EXPECT_EQ(about.lblTitle.caption() + ' ' + about.lblVersion.caption(),
              "FleetWright Version 2.0.5");
    const auto logAfterPress = [&] {
        machine.log.clear();
        desktop.log.clear();
        about.cmdSysInfo.press();
        return machine.log + desktop.log;
    };
    EXPECT_EQ(logAfterPress(), unavailable);
    EXPECT_TRUE(about.isVisible());

    const TemporaryFolder folder;
    machine.values["SOFTWARE\\Microsoft\\Shared Tools Location|MSINFO"] = {
        Registry::textType, folder.path().string() + '\0'};
    EXPECT_EQ(logAfterPress(), unavailable) << "the tool is not there";
    folder.write("MSINFO32.EXE", "");
    machine.startable = "MSINFO32.EXE";
    EXPECT_EQ(logAfterPress(), "start MSINFO32.EXE; ");

    machine.values["SOFTWARE\\Microsoft\\Shared Tools\\MSINFO|PATH"] = {Registry::textType,
                                                                        "tool.exe"};
    EXPECT_EQ(logAfterPress(), "start tool.exe; " + unavailable);
    machine.startable = "tool.exe";
    EXPECT_EQ(logAfterPress(), "start tool.exe; ");
    about.cmdOK.press();
    EXPECT_FALSE(about.isLoaded());
}

}  // namespace
