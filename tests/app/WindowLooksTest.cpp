// How the widgets of all windows are set up, a line for each, in a file of cases.

#include "ControlTexts.h"
#include "FormWindow.h"
#include "ReadableStyle.h"
#include "caseFile.h"
#include "eachWindow.h"
#include "fillWindows.h"
#include "pageFontFiles.h"
#include "widgetTools.h"

#include <gtest/gtest.h>

#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMetaEnum>
#include <QMetaProperty>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollArea>
#include <QShortcut>
#include <QSlider>
#include <QStyle>
#include <QToolButton>
#include <QTreeWidget>

using namespace fleetwright;

namespace {

/// What of widgets and actions is set by whoever makes them. Each kind has some of these.
constexpr const char* settings =
    "enabled minimumSize maximumSize focusPolicy acceptDrops contextMenuPolicy autoFillBackground "
    "frameShape frameShadow textFormat alignment margin wordWrap readOnly tabChangesFocus iconSize "
    "checkable checked autoDefault autoRepeat arrowType editable insertPolicy minimum maximum "
    "value pageStep tickPosition tickInterval orientation rootIsDecorated headerHidden "
    "shortcutContext uniformRowHeights verticalScrollBarPolicy windowModality";
/// Of these only whether there are any: what they say stands in other files of cases.
constexpr const char* texts =
    "text title windowTitle shortcut toolTip whatsThis accessibleName accessibleDescription";

/// A place, without the width where that is as the text in it needs, which fonts decide.
QString placeOf(const QWidget& widget) {
    const bool isFitted = widget.sizeHint().width() >= widget.width() &&
                          (qobject_cast<const QLabel*>(&widget) != nullptr ||
                           qobject_cast<const QCheckBox*>(&widget) != nullptr ||
                           qobject_cast<const QRadioButton*>(&widget) != nullptr);
    const QString width = isFitted ? QString("fitted") : QString::number(widget.width());
    return QString(" %1,%2 %3x%4 ").arg(widget.x()).arg(widget.y()).arg(width).arg(widget.height());
}

QString toText(const QVariant& value) {
    const QSize size = value.toSize();
    return value.typeId() == QMetaType::QSize
               ? QString("%1x%2").arg(size.width()).arg(size.height())
               : QString::number(value.toInt());
}

/// One of its kind as Qt makes it.
template <typename Kind>
const QObject* usual() {
    static const auto* const object = new Kind;
    return object;
}
const QObject& usualOf(const QObject& object) {
    for (const QObject* const each :
         {usual<QAction>(), usual<QCheckBox>(), usual<QComboBox>(), usual<QFrame>(),
          usual<QGroupBox>(), usual<QLabel>(), usual<QLineEdit>(), usual<QMainWindow>(),
          usual<QPlainTextEdit>(), usual<QPushButton>(), usual<QRadioButton>(),
          usual<QScrollArea>(), usual<QSlider>(), usual<QToolButton>(), usual<QTreeWidget>()}) {
        if (each->metaObject() == object.metaObject()) {
            return *each;
        }
    }
    return *usual<QWidget>();
}

/// The kind of an object, and what of it is set otherwise than Qt does.
QString settingsOf(const QObject& object) {
    const QMetaObject& kind = *object.metaObject();
    QString shown = kind.className();
    for (const QByteArray& name : QByteArray(settings).split(' ')) {
        const QVariant value = object.property(name);
        if (!value.isValid() || value == usualOf(object).property(name)) {
            continue;
        }
        const QMetaProperty property = kind.property(kind.indexOfProperty(name));
        const bool hasNames = property.isEnumType() && !property.isFlagType();
        shown += QString("; %1 %2").arg(
            name, hasNames ? property.enumerator().valueToKey(value.toInt()) : toText(value));
    }
    for (const QByteArray& name : QByteArray(texts).split(' ')) {
        shown += object.property(name).toString().isEmpty() ? "" : QString("; ") + name;
    }
    return shown;
}

/// Letters and colours that are not those of the window.
QString lettersOf(const QWidget& widget, const QWidget& window) {
    const QFont font = widget.font(), usual = window.font();
    QString shown = font.pointSizeF() == usual.pointSizeF()
                        ? QString()
                        : QString("; %1 points").arg(font.pointSizeF());
    shown += font.bold() ? "; bold" : "";
    shown += font.stretch() == usual.stretch() ? "" : "; narrow";
    const QMetaEnum roles = QMetaEnum::fromType<QPalette::ColorRole>();
    for (const auto role : {QPalette::WindowText, QPalette::Button, QPalette::Text,
                            QPalette::ButtonText, QPalette::Base, QPalette::Window}) {
        if (widget.palette().color(role) != window.palette().color(role)) {
            shown +=
                QString("; ") + roles.valueToKey(role) + ' ' + widget.palette().color(role).name();
        }
    }
    return shown;
}

/// Columns, but for the last one, which has what is left, and how high rows are.
QString rowsOf(const QTreeWidget& tree) {
    QString shown = "; columns";
    for (int column = 0; column + 1 < tree.header()->count(); ++column) {
        shown += QString(" %1").arg(tree.columnWidth(column));
    }
    if (const QTreeWidgetItem* const item = tree.topLevelItem(0)) {
        shown += QString("; rows %1").arg(tree.visualItemRect(item).height());
    }
    return shown;
}

/// What the style draws in other measures than elsewhere.
QString measuresOf(const QWidget& widget) {
    QString shown;
    const QMetaEnum metrics = QMetaEnum::fromType<QStyle::PixelMetric>();
    for (int i = 0; i < metrics.keyCount(); ++i) {
        const auto metric = static_cast<QStyle::PixelMetric>(metrics.value(i));
        const int usual = QApplication::style()->pixelMetric(metric, nullptr, &widget);
        const int here = widget.style()->pixelMetric(metric, nullptr, &widget);
        shown += here == usual ? "" : QString("; %1").arg(metrics.key(i));
    }
    return shown;
}

QString looksOf(FormWindow& window) {
    const auto& view = dynamic_cast<QScrollArea&>(*window.centralWidget());
    const QWidget& inside = *view.widget();
    // Else it is as large as the screen has room for, and the status line where that ends.
    const bool isWhole = view.size() == inside.size();
    QString looks = "flags " + QString::number(window.windowFlags(), 16) + "\nview " +
                    (isWhole ? settingsOf(view) : "that scrolls") + "\ninside" + placeOf(inside) +
                    settingsOf(inside) + measuresOf(inside);
    for (const QWidget* const widget : window.findChildren<QWidget*>()) {
        const QString name = widget->objectName();
        if (name.isEmpty() || name.startsWith("qt_")) {
            continue;
        }
        if (const auto* const menu = qobject_cast<const QMenu*>(widget)) {
            looks += '\n' + name + " menu" + (menu->toolTipsVisible() ? "; tool tips" : "") +
                     lettersOf(*menu, window) +
                     (menu->style() == inside.style() ? "" : "; own style");
            continue;
        }
        const bool isPlaced = isWhole || !widget->property(followsWindow).toBool();
        const auto* const tree = qobject_cast<const QTreeWidget*>(widget);
        looks += '\n' + name + (isPlaced ? placeOf(*widget) : " ") + settingsOf(*widget) +
                 (widget->isHidden() ? "; hidden" : "") + lettersOf(*widget, window) +
                 (tree == nullptr ? QString() : rowsOf(*tree));
    }
    std::map<QString, QString> entries;
    for (const QAction* const action : window.findChildren<QAction*>()) {
        if (!action->objectName().isEmpty()) {
            entries[settingsOf(*action)] += ' ' + action->objectName();
        }
    }
    for (const auto& [entry, names] : entries) {
        looks += '\n' + entry + ':' + names;
    }
    looks += "\nkeys";
    for (const QShortcut* const shortcut : window.findChildren<QShortcut*>()) {
        looks += ' ' + shortcut->key().toString() + (shortcut->isEnabled() ? "" : " off");
    }
    looks += "\ntabs";
    for (const QWidget* next = window.nextInFocusChain(); next != &window;
         next = next->nextInFocusChain()) {
        const bool isStop = (next->focusPolicy() & Qt::TabFocus) != 0;
        looks += isStop && !next->objectName().isEmpty() ? ' ' + next->objectName() : QString();
    }
    return looks;
}

}  // namespace

TEST(Windows, AreSetUpAsTheirFormsSay) {
    // The same on every machine, and so small that no place grows with it.
    const QFont before = QApplication::font();
    QFont font = pageFont(PageFace::Regular);
    constexpr double points = 7.5;
    font.setPointSizeF(points);
    QApplication::setFont(font);
    QPalette colours(QColor(240, 240, 240));
    colours.setColor(QPalette::Highlight, QColor(48, 140, 198));
    colours.setColor(QPalette::HighlightedText, Qt::white);
    QApplication::setStyle("fusion");
    QApplication::setPalette(colours);
    useReadableStyle();
    Dice dice(1);
    Actor actor(dice);
    fillWindows(actor);
    std::map<std::string, std::string> looks;
    forEachWindow(actor, [&](Form& form) {
        form.setZoom(Zoom(form.name() == "frmFleet" ? 150 : Zoom::actual));
        form.show();
        FormWindow window(form, nullptr, whatsThis);
        QApplication::processEvents();
        looks[form.name()] = looksOf(window).toStdString();
    });
    expectCases("app/golden/looks.txt",
                [&](const Case& each) { return std::exchange(looks[each.title], {}); });
    for (const auto& [name, unseen] : looks) {
        EXPECT_EQ(unseen, "") << name << " has no case";
    }
    QApplication::setFont(before);
    QApplication::setPalette(QPalette());
}
