// Makes the pages of the player's guide for a browser, or prints its chapter of controls for the
// page in Markdown. The first page, index.md, names all others in their order.

#include "Error.h"
#include "GuidePage.h"
#include "controlsChapter.h"
#include "readFile.h"
#include "saveFile.h"

#include <cstdio>
#include <string>
#include <vector>

namespace {

using namespace fleetwright;
namespace fs = std::filesystem;

/// The list of all pages, with the one at hand marked.
std::string navigation(const std::vector<GuidePage>& pages, const GuidePage& current) {
    std::string list = "<nav>\n<ul>\n";
    for (const GuidePage& page : pages) {
        list += "<li><a href=\"" + page.htmlName() + '"' +
                (&page == &current ? " aria-current=\"page\"" : "") + '>' + page.title() +
                "</a></li>\n";
    }
    return list + "</ul>\n</nav>\n";
}

/// Links to the pages before and behind the one at hand.
std::string neighbors(const std::vector<GuidePage>& pages, const GuidePage& current) {
    const auto place = static_cast<std::size_t>(&current - pages.data());
    const auto link = [](const char* way, const GuidePage& page) {
        return std::string("<a rel=\"") + way + "\" href=\"" + page.htmlName() + "\">" +
               page.title() + "</a>\n";
    };
    return "<footer>\n" + (place > 0 ? link("prev", pages[place - 1]) : "") +
           (place + 1 < pages.size() ? link("next", pages[place + 1]) : "") + "</footer>\n";
}

std::string pageFile(const std::vector<GuidePage>& pages, GuidePage& page) {
    const std::string title =
        page.title() + (&page == &pages.front() ? "" : " - " + pages.front().title());
    return "<!DOCTYPE html>\n<html lang=\"en\">\n<head>\n<meta charset=\"utf-8\">\n"
           "<meta name=\"viewport\" content=\"width=device-width, initial-scale=1\">\n<title>" +
           title + "</title>\n<link rel=\"stylesheet\" href=\"guide.css\">\n</head>\n<body>\n" +
           navigation(pages, page) + "<main>\n" + page.html(pages) + neighbors(pages, page) +
           "</main>\n</body>\n</html>\n";
}

void makePages(const fs::path& source, const fs::path& output) {
    std::vector<GuidePage> pages;
    pages.emplace_back(source / "index.md");
    for (const fs::path& file : pages.front().linkedPages()) {
        pages.emplace_back(file);
    }
    fs::create_directories(output);
    saveFile(output / "guide.css", readBytes(source / "guide.css"));
    for (const GuidePage& page : pages) {
        for (const fs::path& picture : page.pictures()) {
            saveFile(output / picture.filename(), readBytes(picture));
        }
    }
    for (GuidePage& page : pages) {
        saveFile(output / page.htmlName(), pageFile(pages, page));
    }
}

}  // namespace

int main(int argc, char** argv) {
    const std::vector<std::string> arguments(argv + 1, argv + argc);
    try {
        if (arguments == std::vector<std::string>{"--controls"}) {
            std::fputs(controlsChapter().c_str(), stdout);
            return 0;
        }
        if (arguments.size() == 2) {
            makePages(arguments[0], arguments[1]);
            return 0;
        }
    } catch (const FileError& error) {
        std::fprintf(stderr, "%s\n", complaint(error).c_str());
        return 1;
    } catch (const std::exception& error) {
        std::fprintf(stderr, "make-guide: %s\n", error.what());
        return 1;
    }
    std::fputs("Usage: make-guide PAGES OUTPUT\n       make-guide --controls\n", stderr);
    return 2;
}
