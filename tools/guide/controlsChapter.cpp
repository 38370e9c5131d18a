#include "controlsChapter.h"

#include "ControlTexts.h"

namespace fleetwright {

std::string controlsChapter() {
    std::string chapter;
    for (const ControlTexts& section : allControlTexts()) {
        chapter.append("\n## ")
            .append(section.title)
            .append("\n\n| On the screen | What it is |\n");
        chapter += "|---|---|\n";
        for (const ControlText& row : section.rows) {
            chapter.append("| **").append(row.title).append("** | ");
            chapter.append(row.text).append(" |\n");
        }
    }
    return chapter;
}

}  // namespace fleetwright
