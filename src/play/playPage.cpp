#include "playPage.h"

#include "Error.h"
#include "SvgPictures.h"
#include "base64.h"
#include "playData.h"
#include "playFiles.h"

#include <charconv>
#include <initializer_list>
#include <string_view>

namespace fleetwright {

namespace {

/// "'sha256-...'", as a content security policy names what it lets be.
std::string hashSource(std::string_view hexadecimal) {
    std::string bytes;
    for (; hexadecimal.size() >= 2; hexadecimal.remove_prefix(2)) {
        unsigned byte = 0;
        constexpr int base = 16;
        std::from_chars(hexadecimal.data(), hexadecimal.data() + 2, byte, base);
        bytes += static_cast<char>(byte);
    }
    return "'sha256-" + toBase64(bytes, Base64Lines::One) + '\'';
}

/// Nothing but the one script, the one style, and pictures inside of the file.
std::string policy() {
    return "default-src 'none'; script-src " + hashSource(playScriptHash) + "; style-src " +
           hashSource(playStyleHash) + "; img-src data:; base-uri 'none'; form-action 'none'";
}

/// What the page has a name for.
struct Part {
    std::string_view name;
    std::string_view text;
};

/// A page with its parts, which stand there in this order.
std::string filled(std::string_view page, std::initializer_list<Part> parts) {
    std::string text;
    for (const Part& part : parts) {
        const std::string mark = "{{" + std::string(part.name) + "}}";
        const std::size_t place = page.find(mark);
        text.append(page.substr(0, place)).append(part.text);
        page.remove_prefix(place + mark.size());
    }
    return text.append(page);
}

}  // namespace

std::string playPage(const PlayFleet& fleet, PictureEncoder& encoder) {
    if (fleet.ships.empty()) {
        throw Error("there is no ship to play with");
    }
    SvgPictures pictures(encoder);
    std::vector<PlayDrawing> drawings;
    std::string drawn;
    for (const VectorSheet& sheet : fleet.sheets) {
        drawn += drawings.emplace_back(playDrawing(sheet, pictures)).svg;
    }
    const std::string data = playData(fleet, drawings, pictures);
    return filled(playPageFile, {{"policy", policy()},
                                 {"style", playStyle},
                                 {"definitions", pictures.takeDefinitions()},
                                 {"drawings", drawn},
                                 {"data", data},
                                 {"script", playScript}});
}

}  // namespace fleetwright
