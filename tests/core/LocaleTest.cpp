#include "Error.h"
#include "formula_calculate.h"
#include "runCommand.h"
#include "testShip.h"
#include "testSystem.h"
#include "wholeNumber.h"

#include <gtest/gtest.h>

#include <clocale>
#include <cstdio>
#include <locale>

using namespace fleetwright;

#ifdef FLEETWRIGHT_SANITIZED
// The C library keeps the list of folders that it has looked for locales in. Older ones have a "__"
// in front of the name.
extern "C" const char* __lsan_default_suppressions() {  // NOLINT(bugprone-reserved-identifier)
    return "leak:argz_add_sep\n";
}
#endif

// A process in which numbers are written with a decimal comma and thousands with a point, as a
// window system sets it up for many users. The locale is made for the test, so that it does not
// depend on what is installed.
TEST(Locale, OfTheProcessMakesNoDifference) {
    const TemporaryFolder folder;
    const std::string source = folder.write("source", "comment_char %\nescape_char /\n"
                                                      "LC_CTYPE\ncopy \"POSIX\"\nEND LC_CTYPE\n"
                                                      "LC_NUMERIC\ndecimal_point \",\"\n"
                                                      "thousands_sep \".\"\ngrouping 3;3\n"
                                                      "END LC_NUMERIC\n");
    // It complains about what the source leaves out, and writes the rest.
    runCommand("localedef -c -i " + source + " -f UTF-8 " + (folder.path() / "comma").string() +
               " 2>&1");
    setVariable("LOCPATH", folder.path().string());
    ASSERT_NE(std::setlocale(LC_ALL, "comma"), nullptr) << "localedef has failed";
    std::locale::global(std::locale("comma"));
    char text[10];
    std::snprintf(text, sizeof text, "%.1f", 2.5);
    EXPECT_STREQ(text, "2,5");

    EXPECT_EQ(wholeNumber("3.5"), 4);
    EXPECT_THROW(wholeNumber("3,5"), NotANumberError);
    EXPECT_EQ(roundUp(30 * 0.1), 3);
    char formula[] = "roundup(mass * 0.12345678901234567890) * 1000 + 0.5 * amount";
    EXPECT_EQ(formula_calculate(formula, 50, 1, 1, 2, 100, 4), 7002);
    const std::string file = ShipYard().loaded("Mass: 2500.5\nSystem: Gun, 1000\n")->shipFile();
    EXPECT_NE(file.find("Mass: 2500\r\n"), std::string::npos);
    EXPECT_NE(file.find("System: Gun, 1000\r\n"), std::string::npos);

    std::locale::global(std::locale::classic());
    unsetVariable("LOCPATH");
}
