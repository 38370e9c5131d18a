#pragma once

#include "StatusBar.h"

#include <string>

namespace fleetwright {

/// What a status line says of a state that a ship can be in: it is said when the state comes about
/// or changes, and what the line still says of it is taken back when it ends.
class Remark {
public:
    /// `words` are empty where the ship is not in that state.
    void follow(StatusBar& line, const std::string& words) {
        if (words != m_words) {
            if (!words.empty() || line.text() == m_words) {
                line.setText(words);
            }
            m_words = words;
        }
    }

private:
    std::string m_words;
};

}  // namespace fleetwright
