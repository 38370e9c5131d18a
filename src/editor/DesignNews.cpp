#include "DesignNews.h"

#include "ShipClass.h"

#include <cstddef>
#include <utility>

namespace fleetwright {

std::string DesignNews::sinceLastTime(const ShipClass& ship, const std::string& step) {
    static constexpr std::array<const char*, 4> names = {"Mass", "Mass Left", "Cost",
                                                         "Damage Points"};
    const std::array<std::int32_t, 4> figures = {ship.mass(), ship.g_iMassLeft, ship.g_lCost,
                                                 ship.g_iDP};
    const auto before = std::exchange(m_figures, figures);
    std::string news = step;
    for (std::size_t i = 0; before && i < figures.size(); ++i) {
        const std::string figure = names[i] + (' ' + std::to_string(figures[i]));
        if (figures[i] != (*before)[i] && figure != step) {
            news += (news.empty() ? "" : ", ") + figure;
        }
    }
    return news;
}

}  // namespace fleetwright
