#pragma once

#include <QLabel>

namespace fleetwright {

class Label;

/// The widget of a label whose tool tip is worked out when somebody wants to see it. Screen readers
/// get that as its description, worked out each time that they ask.
QLabel* newExplainedLabel(const Label& label, QWidget* parent);

}  // namespace fleetwright
