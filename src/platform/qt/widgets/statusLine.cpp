#include "statusLine.h"

#include "StatusBar.h"
#include "controlWidgets.h"
#include "widgetTools.h"

#include <QAccessible>
#include <QAccessibleWidget>
#include <QPointer>

#include <functional>
#include <utility>

namespace fleetwright {

namespace {

/// Nothing to be seen. What has this role and comes to be shown is read aloud at once.
class Notice : public QWidget {
public:
    using QWidget::QWidget;
};

class ShownText : public QAccessibleWidget {
public:
    using QAccessibleWidget::QAccessibleWidget;

    QAccessible::State state() const override {
        QAccessible::State state = QAccessibleWidget::state();
        state.readOnly = true;
        return state;
    }
};

QAccessibleInterface* roleOf(const QString&, QObject* object) {
    if (auto* const notice = dynamic_cast<Notice*>(object)) {
        return new ShownText(notice, QAccessible::Notification);
    }
    auto* const line = dynamic_cast<StatusLine*>(object);
    return line == nullptr ? nullptr : new ShownText(line, QAccessible::StatusBar);
}

/// Keeps a line at the lower edge of its window, or of the part of it that is seen.
void dock(QWidget& line, const Scale& scale) {
    QWidget* const inside = line.parentWidget();
    QRect seen = inside->rect();
    if (const QWidget* const view = inside->parentWidget();
        view != nullptr && !inside->isWindow()) {
        seen &= QRect(-inside->pos(), view->size());
    }
    const int height = scale.pixels(StatusBar::height);
    line.setGeometry(seen.left(), seen.bottom() + 1 - height, seen.width(), height);
    line.raise();
}

/// Calls a function whenever a widget takes another place, size or parent.
void followPlace(QWidget* widget, std::function<void()> follow) {
    new EventHook(widget, [follow = std::move(follow)](QEvent* event) {
        if (event->type() == QEvent::Resize || event->type() == QEvent::Move ||
            event->type() == QEvent::ParentChange) {
            follow();
        }
        return false;
    });
}

}  // namespace

StatusLine::StatusLine(QWidget* parent) : QLabel(parent), m_notice(new Notice(this)) {
    QAccessible::installFactory(roleOf);
    m_notice->setAttribute(Qt::WA_TransparentForMouseEvents);
    m_notice->resize(1, 1);
    setTextFormat(Qt::PlainText);  // names in it are no markup
    setProperty(followsWindow, true);
    setFrameStyle(QFrame::StyledPanel | QFrame::Sunken);
    setMargin(2);
    setAutoFillBackground(true);  // it stands before whatever scrolls below it
    constexpr int pause = 300;    // milliseconds; a key that is held repeats faster
    m_tell.setSingleShot(true);
    m_tell.setInterval(pause);
    connect(&m_tell, &QTimer::timeout, this, [this] { announce(m_told); });
}

void StatusLine::showText(const QString& text) {
    m_text = text;
    setAccessibleName(text);
    fit();
}

void StatusLine::fit() {
    const int room = contentsRect().width() - 2 * margin();
    const QString shown = fontMetrics().elidedText(m_text, Qt::ElideRight, room);
    setText(shown);
    setToolTip(shown == m_text ? QString() : toToolTip(m_text.toStdString()));
}

void StatusLine::resizeEvent(QResizeEvent* event) {
    QLabel::resizeEvent(event);
    fit();
}

void StatusLine::changeEvent(QEvent* event) {
    QLabel::changeEvent(event);
    if (event->type() == QEvent::FontChange) {
        fit();
    }
}

void StatusLine::tell(const QString& text) {
    m_told = text;
    m_tell.start();
}

void StatusLine::announce(const QString& text) {
    m_notice->setAccessibleName(text);
    QAccessibleEvent event(m_notice, QAccessible::ObjectShow);
    QAccessible::updateAccessibility(&event);
}

QWidget* makeWidget(StatusBar& bar, QWidget* parent, const Scale& scale) {
    auto* const widget = new StatusLine(parent);
    prepare(widget, bar, scale);
    const auto redock = [widget, scale] { dock(*widget, scale); };
    keepZoomed(widget, scale, redock);
    followPlace(parent, [parent, redock, view = QPointer<QWidget>()]() mutable {
        if (parent->parentWidget() != view) {
            view = parent->parentWidget();
            followPlace(view, redock);
        }
        redock();
    });
    keepInStep(widget, bar, [widget, &bar] { widget->showText(toShown(bar.text())); });
    keepAttached(widget, bar.Said.connect([widget] {
        if (widget->isVisible()) {
            widget->announce();
        }
    }));
    keepAttached(widget, bar.Told.connect([widget](const std::string& text) {
        if (widget->isVisible()) {
            widget->tell(toShown(text));
        }
    }));
    return widget;
}

}  // namespace fleetwright
