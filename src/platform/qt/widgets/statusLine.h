#pragma once

#include <QLabel>

namespace fleetwright {

/// The line at the lower edge of a window, and the notices by which screen readers say what is new
/// in it, wherever the keyboard is.
class StatusLine : public QLabel {
public:
    explicit StatusLine(QWidget* parent);

    void showText(const QString& text);
    /// Has screen readers say the text that is shown.
    void announce();

private:
    QWidget* m_notice;
};

}  // namespace fleetwright
