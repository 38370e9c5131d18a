#include "commands.h"

#include "ReportPrinter.h"
#include "ShipOnScreen.h"

namespace fleetwright {

namespace {

class TextPrinter : public ReportPrinter {
public:
    void printLine(std::string_view line) override {
        m_text += line;
        m_text += '\n';
    }
    void printEmptyLine() override { m_text += '\n'; }
    void endDocument() override {}

    const std::string& text() const { return m_text; }

private:
    std::string m_text;
};

int runReport(const Options& options) {
    return forEachShip(options, RefusedLines::AsComplaints, [](std::size_t, ShipOnScreen& screen) {
        TextPrinter printer;
        screen.ship().PrintShip(printer);
        return printer.text();
    });
}

}  // namespace

extern const CommandRow reportCommand = {
    .name = "report",
    .words = "SHIP...",
    .least = 1,
    .most = CommandRow::any,
    .help = "Print the report of ships",
    .details = "The report is the one that the program prints on paper.",
    .run = runReport,
};

}  // namespace fleetwright
