#include "Error.h"
#include "ReportPrinter.h"
#include "formulaFault.h"
#include "testShip.h"
#include "wholeNumber.h"

#include <gtest/gtest.h>

#include <clocale>
#include <cstdlib>
#include <locale>

using namespace fleetwright;

#if defined(__SANITIZE_ADDRESS__)
// The C library keeps the list of folders that it has looked for locales in.
extern "C" const char* __lsan_default_suppressions() {  // NOLINT(bugprone-reserved-identifier)
    return "leak:__argz_add_sep\n";
}
#endif

namespace {

/// A process in which numbers are written with a decimal comma and thousands with a point, as a
/// window system sets it up for many users. The locale is made for the test, so that it does not
/// depend on what is installed.
class CommaLocale {
public:
    CommaLocale() {
        const std::string command = "localedef -i de_DE -f UTF-8 " + m_folder.path().string() +
                                    "/de_DE.UTF-8 >/dev/null 2>&1";
        m_isMade = std::system(command.c_str()) == 0 &&
                   setenv("LOCPATH", m_folder.path().c_str(), 1) == 0 &&
                   std::setlocale(LC_ALL, "de_DE.UTF-8") != nullptr;
        if (m_isMade) {
            std::locale::global(std::locale("de_DE.UTF-8"));
        }
    }
    CommaLocale(const CommaLocale&) = delete;
    CommaLocale& operator=(const CommaLocale&) = delete;
    ~CommaLocale() {
        std::locale::global(std::locale::classic());
        unsetenv("LOCPATH");
    }

    bool isMade() const { return m_isMade; }

private:
    TemporaryFolder m_folder;
    bool m_isMade = false;
};

}  // namespace

TEST(Locale, OfTheProcessMakesNoDifference) {
    const CommaLocale locale;
    ASSERT_TRUE(locale.isMade()) << "localedef, of the package locales, has failed";
    char text[10];
    std::snprintf(text, sizeof text, "%.1f", 2.5);
    ASSERT_STREQ(text, "2,5");

    EXPECT_EQ(wholeNumber("3.5"), 4);
    EXPECT_THROW(wholeNumber("3,5"), NotANumberError);
    EXPECT_EQ(roundUp(30 * 0.1), 3);
    char formula[] = "roundup(mass * 0.12345678901234567890) * 1000 + 0.5 * amount";
    EXPECT_EQ(formula_calculate(formula, 50, 1, 1, 2, 100, 4), 7002);

    const ShipYard yard;
    const auto ship = yard.loaded("Ship Name: é\nMass: 2500.5\nSystem: Gun, 1000\n");
    ship->g_iDP = 1234567;
    std::string name = (yard.folder().path() / "saved.shp").string();
    ASSERT_TRUE(ship->saveShip(name));
    EXPECT_NE(yard.folder().read("saved.shp").find("Mass: 2500\r\n"), std::string::npos);
    EXPECT_NE(yard.folder().read("saved.shp").find("System: Gun, 1000\r\n"), std::string::npos);
}
