// Buttons of all kinds, the arrows, and the frames that buttons stand in.

#include "Button.h"
#include "CheckBox.h"
#include "Frame.h"
#include "OptionButton.h"
#include "ReadableStyle.h"
#include "UpDown.h"
#include "contrast.h"
#include "controlWidgets.h"
#include "pictureIcon.h"
#include "widgetTools.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QGroupBox>
#include <QKeyEvent>
#include <QPainter>
#include <QPushButton>
#include <QRadioButton>
#include <QStyleOptionToolButton>
#include <QStylePainter>
#include <QToolButton>
#include <QWheelEvent>

namespace fleetwright {

namespace {

/// A frame whose caption stands in its upper edge, so that what is in it may begin right below.
class CaptionFrame : public QGroupBox {
public:
    using QGroupBox::QGroupBox;

protected:
    void paintEvent(QPaintEvent*) override {
        QPainter painter(this);
        const QFontMetrics metrics(font());
        const QRect frame = rect().adjusted(0, metrics.height() / 2, -1, -1);
        painter.setPen(readableOn(palette().color(QPalette::Window), palette().color(QPalette::Mid),
                                  edgeContrast));
        painter.drawRoundedRect(frame, corner, corner);
        const QRect caption(inset, 0, metrics.horizontalAdvance(title()) + 2 * corner,
                            metrics.height());
        painter.fillRect(caption, palette().color(QPalette::Window));
        painter.setPen(palette().color(isEnabled() ? QPalette::Active : QPalette::Disabled,
                                       QPalette::WindowText));
        painter.drawText(caption, Qt::AlignCenter, title());
    }

private:
    static constexpr int corner = 3, inset = 8;  // pixels
};

/// An option button with a face that stays down. It only looks like a tool button: to those who
/// have it read to them it is one of several choices.
class FacedOption : public QRadioButton {
public:
    using QRadioButton::QRadioButton;

    QSize sizeHint() const override {
        const QStyleOptionToolButton look = currentLook();
        const int blank = fontMetrics().horizontalAdvance(' ');
        const QSize face =
            icon().isNull() ? fontMetrics().size(Qt::TextShowMnemonic, text()) + QSize(2 * blank, 0)
                            : iconSize();
        return style()->sizeFromContents(QStyle::CT_ToolButton, &look, face, this);
    }

protected:
    bool hitButton(const QPoint& place) const override { return rect().contains(place); }

    void paintEvent(QPaintEvent*) override {
        QStylePainter painter(this);
        const QStyleOptionToolButton look = currentLook();
        // The styles of Windows give what is down a ground of their own, on which its face is pale.
        if (!isChecked() || !styleName().startsWith("windows")) {
            painter.drawComplexControl(QStyle::CC_ToolButton, look);
            return;
        }
        painter.fillRect(rect(), look.palette.color(QPalette::Button));
        painter.drawControl(QStyle::CE_ToolButtonLabel, look);
        if (look.state.testFlag(QStyle::State_HasFocus)) {
            QStyleOptionFocusRect edge;
            edge.initFrom(this);
            edge.rect.adjust(3, 3, -3, -3);
            edge.backgroundColor = look.palette.color(QPalette::Button);
            painter.drawPrimitive(QStyle::PE_FrameFocusRect, edge);
        }
    }

private:
    QStyleOptionToolButton currentLook() const {
        QStyleOptionToolButton look;
        look.initFrom(this);
        look.text = text();
        look.icon = icon();
        look.iconSize = iconSize();
        look.font = font();
        look.toolButtonStyle = icon().isNull() ? Qt::ToolButtonTextOnly : Qt::ToolButtonIconOnly;
        look.subControls = QStyle::SC_ToolButton;
        look.state.setFlag(QStyle::State_On, isChecked());
        look.state.setFlag(QStyle::State_Sunken, isDown());
        look.state.setFlag(QStyle::State_Raised, !isDown() && !isChecked());
        return look;
    }
};

/// Caption and picture of a button that shows either.
void setFace(QAbstractButton* widget, const ControlDesign& design, const Scale& scale) {
    widget->setText(toQt(design.caption));
    if (!design.picture.empty()) {
        constexpr int pictureSize = 32;
        widget->setIcon(faceIcon(design.picture, scale));
        keepZoomed(widget, scale, [widget, scale] {
            widget->setIconSize(QSize(pictureSize, pictureSize) * scale.zoom());
        });
    }
}

/// Makes room for a caption that is too long for its place, at each zoom anew.
void keepFitted(QWidget* widget, const Control& control, const Scale& scale) {
    keepZoomed(widget, scale, [widget, &control, scale] {
        widget->setFont(QFont());
        fitText(widget, control, scale);
    });
}

/// The group of the option buttons that stand in one frame.
QButtonGroup* groupIn(QWidget* parent) {
    auto* const group = parent->findChild<QButtonGroup*>(QString(), Qt::FindDirectChildrenOnly);
    return group != nullptr ? group : new QButtonGroup(parent);
}

/// Chooses the next button of a group that can be chosen, or the one before it.
void chooseBeside(QAbstractButton* button, int step) {
    const QList<QAbstractButton*> buttons = button->group()->buttons();
    const auto count = static_cast<int>(buttons.size());
    for (int i = 1; i < count; ++i) {
        const auto place = static_cast<int>(buttons.indexOf(button)) + step * i;
        QAbstractButton* const next = buttons[((place % count) + count) % count];
        if (next->isEnabled()) {
            next->setFocus(Qt::TabFocusReason);
            next->click();
            return;
        }
    }
}

/// Handles the arrow keys inside a group.
bool stepByKey(QAbstractButton* button, const QKeyEvent& event) {
    switch (event.key()) {
    case Qt::Key_Left:
    case Qt::Key_Up:
        chooseBeside(button, -1);
        return true;
    case Qt::Key_Right:
    case Qt::Key_Down:
        chooseBeside(button, +1);
        return true;
    default:
        return false;
    }
}

}  // namespace

QWidget* makeWidget(Frame& frame, QWidget* parent, const Scale& scale) {
    if (frame.design().caption.empty()) {
        auto* const widget = new QFrame(parent);
        prepare(widget, frame, scale);
        return widget;
    }
    auto* const widget = new CaptionFrame(toQt(frame.design().caption), parent);
    prepare(widget, frame, scale);
    // A frame inside another one would be spoken of by the name of the outer one.
    widget->setAccessibleName(widget->title());
    return widget;
}

QWidget* makeWidget(Button& button, QWidget* parent, const Scale& scale) {
    auto* const widget = new QPushButton(parent);
    prepare(widget, button, scale);
    setFace(widget, button.design(), scale);
    widget->setAutoDefault(false);
    QObject::connect(widget, &QPushButton::clicked, [&button] { button.press(); });
    new EventHook(widget, [widget](QEvent* event) {
        const bool isEnter = event->type() == QEvent::KeyPress &&
                             (static_cast<QKeyEvent*>(event)->key() == Qt::Key_Return ||
                              static_cast<QKeyEvent*>(event)->key() == Qt::Key_Enter);
        if (isEnter) {
            widget->click();
        }
        return isEnter;
    });
    return widget;
}

QWidget* makeWidget(CheckBox& box, QWidget* parent, const Scale& scale) {
    QAbstractButton* widget = nullptr;
    if (box.design().isGraphical) {
        auto* const button = new QPushButton(parent);
        button->setCheckable(true);
        button->setAutoDefault(false);
        widget = button;
    } else {
        widget = new QCheckBox(parent);
    }
    prepare(widget, box, scale);
    setFace(widget, box.design(), scale);
    keepInStep(widget, box, [widget, &box] { widget->setChecked(box.isTicked()); });
    if (!box.design().isGraphical) {  // buttons stand in rows of equals
        keepFitted(widget, box, scale);
    }
    // Whoever has it read to him switches it without a click.
    QObject::connect(widget, &QAbstractButton::toggled, [widget, &box](bool isTicked) {
        if (isTicked != box.isTicked()) {
            box.press();
            widget->setChecked(box.isTicked());
        }
    });
    return widget;
}

QWidget* makeWidget(OptionButton& button, QWidget* parent, const Scale& scale) {
    auto* const widget =
        button.design().isGraphical ? new FacedOption(parent) : new QRadioButton(parent);
    prepare(widget, button, scale);
    setFace(widget, button.design(), scale);
    QButtonGroup* const group = groupIn(parent);
    group->addButton(widget);
    const auto showState = [widget, group, &button] {
        // A group can stand without any choice, which Qt's own exclusion does not allow.
        group->setExclusive(false);
        widget->setChecked(button.isOn());
        group->setExclusive(true);
        // The keyboard comes to a group at its choice.
        for (QAbstractButton* const each : group->buttons()) {
            const bool isStop = group->checkedButton() == nullptr || each->isChecked();
            each->setFocusPolicy(isStop ? Qt::StrongFocus : Qt::ClickFocus);
        }
        // Which button is down must be seen at once, in dark themes too.
        QPalette palette = widget->parentWidget()->palette();
        if (button.design().isGraphical && button.isOn()) {
            constexpr double clearly = 7;  // as styles draw buttons paler than they are told
            for (const auto state : {QPalette::Active, QPalette::Inactive, QPalette::Disabled}) {
                const bool isClosed = state == QPalette::Disabled;
                // In a window behind another one it is the same, as its picture is.
                const auto from = isClosed ? state : QPalette::Active;
                const QColor text = palette.color(from, QPalette::HighlightedText);
                const QColor ground = palette.color(from, QPalette::Highlight);
                palette.setColor(state, QPalette::Button,
                                 isClosed ? ground : readableOn(text, ground, clearly));
                palette.setColor(state, QPalette::ButtonText, text);
            }
        }
        widget->setPalette(palette);
    };
    keepInStep(widget, button, showState);
    keepFitted(widget, button, scale);
    QObject::connect(widget, &QAbstractButton::toggled, [&button, showState](bool isOn) {
        if (isOn && !button.isOn()) {
            button.choose();
            showState();
        }
    });
    new EventHook(widget, [widget, showState](QEvent* event) {
        if (isNewPalette(*event)) {
            showState();
        }
        return event->type() == QEvent::KeyPress &&
               stepByKey(widget, *static_cast<QKeyEvent*>(event));
    });
    return widget;
}

QWidget* makeWidget(UpDown& arrows, QWidget* parent, const Scale& scale) {
    auto* const widget = new QWidget(parent);
    prepare(widget, arrows, scale);
    const auto addArrow = [&](Qt::ArrowType type, const QString& direction, bool isLower) {
        auto* const arrow = new QToolButton(widget);
        arrow->setArrowType(type);
        arrow->setAutoRepeat(true);
        arrow->setFocusPolicy(Qt::StrongFocus);
        keepZoomed(arrow, scale, [arrow, widget, isLower] {
            const int half = widget->height() / 2;
            arrow->setGeometry(0, isLower ? half : 0, widget->width(), half);
        });
        arrow->setObjectName(widget->objectName() + direction);
        arrow->setToolTip(widget->toolTip());
        arrow->setAccessibleName(widget->accessibleName() + ", " + direction.toLower());
        return arrow;
    };
    auto* const up = addArrow(Qt::UpArrow, "Up", false);
    auto* const down = addArrow(Qt::DownArrow, "Down", true);
    QObject::connect(up, &QToolButton::clicked, [&arrows] { arrows.pressUp(); });
    QObject::connect(down, &QToolButton::clicked, [&arrows] { arrows.pressDown(); });
    // Fine wheels turn by parts of a notch.
    new EventHook(widget, [&arrows, turned = 0](QEvent* event) mutable {
        if (event->type() != QEvent::Wheel) {
            return false;
        }
        constexpr int notch = QWheelEvent::DefaultDeltasPerStep;
        turned += static_cast<QWheelEvent*>(event)->angleDelta().y();
        for (; turned >= notch; turned -= notch) {
            arrows.pressUp();
        }
        for (; turned <= -notch; turned += notch) {
            arrows.pressDown();
        }
        event->accept();
        return true;
    });
    return widget;
}

}  // namespace fleetwright
