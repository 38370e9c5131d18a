#include "visualSigns.h"

#include <fribidi.h>

#include <algorithm>
#include <new>
#include <numeric>

namespace fleetwright {

namespace {

bool isFromTheRight(const PageSign& sign) {
    constexpr char32_t first = 0x590;  // of those that are, of which most texts have none
    return sign.character >= first && FRIBIDI_IS_RTL(fribidi_get_bidi_type(sign.character));
}

/// The places of characters from left to right. They become those that show how they are joined;
/// the first one of a ligature becomes FRIBIDI_CHAR_FILL, the second one the ligature.
std::vector<FriBidiStrIndex> visualOrder(std::vector<FriBidiChar>& characters) {
    const auto count = static_cast<FriBidiStrIndex>(characters.size());
    std::vector<FriBidiCharType> types(characters.size());
    std::vector<FriBidiBracketType> brackets(characters.size());
    std::vector<FriBidiLevel> levels(characters.size());
    std::vector<FriBidiArabicProp> joins(characters.size());
    FriBidiParType direction = FRIBIDI_PAR_LTR;
    fribidi_get_bidi_types(characters.data(), count, types.data());
    fribidi_get_bracket_types(characters.data(), count, types.data(), brackets.data());
    bool isWell = fribidi_get_par_embedding_levels_ex(types.data(), brackets.data(), count,
                                                      &direction, levels.data()) != 0;
    fribidi_get_joining_types(characters.data(), count, joins.data());
    fribidi_join_arabic(types.data(), count, levels.data(), joins.data());
    fribidi_shape(FRIBIDI_FLAG_SHAPE_MIRRORING | FRIBIDI_FLAGS_ARABIC, levels.data(), count,
                  joins.data(), characters.data());
    std::vector<FriBidiStrIndex> order(characters.size());
    std::iota(order.begin(), order.end(), 0);
    isWell = isWell && fribidi_reorder_line(0, types.data(), count, 0, direction, levels.data(),
                                            nullptr, order.data()) != 0;
    if (!isWell) {
        throw std::bad_alloc();  // the one way in which it fails
    }
    return order;
}

}  // namespace

std::vector<PageSign> visualSigns(std::string_view text, PageFont font) {
    std::vector<PageSign> signs = pageSigns(text, font);
    if (std::ranges::none_of(signs, isFromTheRight)) {
        return signs;
    }
    std::vector<FriBidiChar> shapes;
    for (const PageSign& sign : signs) {
        shapes.push_back(sign.character);
    }
    std::vector<PageSign> visual;
    for (const FriBidiStrIndex index : visualOrder(shapes)) {
        const auto place = static_cast<std::size_t>(index);
        PageSign shaped = pageSign(shapes[place], font);
        const bool hasShape = !shaped.isMissing();
        shaped.character = signs[place].character;
        visual.push_back(hasShape ? shaped : signs[place]);
    }
    return visual;
}

}  // namespace fleetwright
