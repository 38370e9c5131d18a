#pragma once

#include <QLabel>
#include <QTimer>

namespace fleetwright {

/// The line at the lower edge of a window, and the notices by which screen readers say what is new
/// in it, wherever the keyboard is.
class StatusLine : public QLabel {
public:
    explicit StatusLine(QWidget* parent);

    /// Ends in dots what the line has no room for, and has its tool tip show all of it.
    void showText(const QString& text);
    /// Has screen readers say the text.
    void announce() { announce(m_text); }
    /// Has them say another one, unless a further one follows at once.
    void tell(const QString& text);

protected:
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void fit();
    void announce(const QString& text);

    QString m_text;
    QWidget* m_notice;
    QString m_told;
    QTimer m_tell;
};

}  // namespace fleetwright
