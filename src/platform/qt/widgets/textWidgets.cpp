// Labels, text boxes and combo boxes.

#include "ComboBox.h"
#include "Label.h"
#include "TextBox.h"
#include "contrast.h"
#include "controlWidgets.h"
#include "explainedLabel.h"
#include "widgetTools.h"

#include <QAbstractItemView>
#include <QComboBox>
#include <QContextMenuEvent>
#include <QDropEvent>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMimeData>
#include <QPlainTextEdit>
#include <QScrollBar>
#include <QSignalBlocker>
#include <QStyle>

#include <algorithm>

namespace fleetwright {

QWidget* makeWidget(Label& label, QWidget* parent, const Scale& scale) {
    QLabel* const widget = label.askToolTip ? newExplainedLabel(label, parent) : new QLabel(parent);
    widget->setTextFormat(Qt::PlainText);  // names in it are no markup
    prepare(widget, label, scale);
    const auto colour = [widget, &label] {
        QPalette palette;  // whose colours are those of the parent, but for what is set
        if (label.design().isAlarming) {
            palette.setColor(QPalette::WindowText,
                             warningColour(widget->parentWidget()->palette()));
        }
        widget->setPalette(palette);
    };
    new EventHook(widget, [colour](QEvent* event) {
        if (event->type() == QEvent::ApplicationPaletteChange) {
            colour();
        }
        return false;
    });
    const auto show = [widget, &label, scale, colour] {
        colour();
        QFont font;
        if (label.design().isHeading) {
            constexpr double enlargement = 1.6;
            font.setPointSizeF(widget->window()->font().pointSizeF() * enlargement);
            font.setBold(true);
        }
        widget->setFont(font);
        widget->setGeometry(scale.rect(label.place()));
        widget->setText(toQt(label.caption()));
        fitText(widget, label, scale);
    };
    keepInStep(widget, label, show);
    keepZoomed(widget, scale, show);
    if (label.design().isFramed) {
        widget->setFrameStyle(QFrame::StyledPanel | QFrame::Sunken);
        widget->setAlignment(Qt::AlignCenter);
    }
    return widget;
}

namespace {

/// Whether some desktops move in a text, or delete in it, by a key that others know from menus:
/// then it is the menu's, if that has it.
bool isRatherOfMenus(const QEvent& event) {
    constexpr std::string_view ofTexts = "ACVXYZ";  // everywhere
    if (event.type() != QEvent::ShortcutOverride) {
        return false;
    }
    const auto& key = static_cast<const QKeyEvent&>(event);
    return key.modifiers() == Qt::ControlModifier && key.key() >= Qt::Key_A &&
           key.key() <= Qt::Key_Z && ofTexts.find(char(key.key())) == std::string_view::npos;
}

/// Keys that edit a text are the menu's where there is nothing to edit, or where that knows more.
bool takesEditKeys(QEvent& event, const TextBox& box) {
    if (event.type() != QEvent::ShortcutOverride) {
        return false;
    }
    const auto& key = static_cast<QKeyEvent&>(event);
    return box.isLocked() || isRatherOfMenus(event) ||
           (box.design().isUndoneByForm &&
            (key.matches(QKeySequence::Undo) || key.matches(QKeySequence::Redo)));
}

/// The text of a box with many lines as models keep it. Its plain text would have blanks for
/// no-break spaces, which names of files may hold.
std::string textOf(const QPlainTextEdit& edit) {
    return edit.document()
        ->toRawText()
        .replace(QChar::ParagraphSeparator, "\r\n")
        .replace(QChar::LineSeparator, "\r\n")  // of Shift+Enter
        .toStdString();
}

/// A text that was pasted, perhaps, into a box of one line: where lines end it has blanks, as the
/// box shows it.
QString oneLine(QString text) {
    text.replace("\r\n", " ");
    for (QChar& each : text) {
        if (each == '\r' || each == '\n' || each == QChar::LineSeparator ||
            each == QChar::ParagraphSeparator) {
            each = ' ';
        }
    }
    return text;
}

/// How wide the letters of a line are, in percent: as those of its window, or narrower, if it is to
/// show all of its text and that is too long for it.
int stretchOf(const QLineEdit& line, bool isFitting) {
    constexpr int narrowest = 70, step = 5, plain = 100, edges = 10;
    QFont font = line.font();
    font.setStretch(line.parentWidget()->font().stretch());
    const int needed = QFontMetrics(font).horizontalAdvance(line.text()) + edges;
    return !isFitting || needed <= line.width()
               ? font.stretch()
               : std::max(plain * line.width() / needed / step * step, narrowest);
}

/// Each font that is set is looked up anew, which takes long. Its size is that of the window.
void setStretch(QLineEdit& line, int stretch) {
    if (stretch != line.font().stretch()) {
        QFont font;
        font.setStretch(stretch);
        line.setFont(font);
    }
}

/// Whether a key would undo or redo something in a line where there is nothing of the kind: then it
/// is that of the window, which has more to undo.
bool isBeyondUndo(QEvent& event, const QLineEdit& line) {
    const auto& key = static_cast<QKeyEvent&>(event);
    return (key.matches(QKeySequence::Undo) && !line.isUndoAvailable()) ||
           (key.matches(QKeySequence::Redo) && !line.isRedoAvailable());
}

/// Whether a key copies what is marked in a line, as it does in a locked one, too.
bool copiesMarked(QEvent& event, const QLineEdit& line) {
    return static_cast<QKeyEvent&>(event).matches(QKeySequence::Copy) && line.hasSelectedText();
}

/// Has the model open or shut its text, as a double-click and F2 do. What is open is there to be
/// written anew. Whether it is open.
bool openOrShut(TextBox& box, QLineEdit& line) {
    box.doubleClick();
    if (!box.isLocked()) {
        line.selectAll();
    }
    return !box.isLocked();
}

/// Hands what is done to a line to its model. Whether the line itself is to do nothing with it.
bool takeEvent(QEvent& event, TextBox& box, QLineEdit& line, const Scale& scale) {
    switch (event.type()) {
    case QEvent::MouseButtonPress:
        if (box.onMouseDown) {
            box.pressMouse(toPress(static_cast<QMouseEvent&>(event), scale));
            line.setFocus(Qt::MouseFocusReason);
            return true;
        }
        return false;
    case QEvent::ContextMenu:
        if (box.onMouseDown &&
            static_cast<QContextMenuEvent&>(event).reason() == QContextMenuEvent::Keyboard) {
            box.pressMouse({.button = RightButton});
            line.setFocus(Qt::OtherFocusReason);
        }
        return static_cast<bool>(box.onMouseDown);
    case QEvent::ShortcutOverride:
        return !copiesMarked(event, line) &&
               (takesEditKeys(event, box) || isBeyondUndo(event, line));
    case QEvent::DragEnter:
        return static_cast<QDropEvent&>(event).mimeData()->hasUrls();  // files are for the window
    case QEvent::KeyPress: {
        const auto& key = static_cast<QKeyEvent&>(event);
        if (key.key() == Qt::Key_F2 && box.onDblClick) {
            openOrShut(box, line);
            return true;
        }
        const QString typed = key.text();
        return !typed.isEmpty() && box.pressKey(typed.front().unicode());
    }
    case QEvent::MouseButtonDblClick:
        return box.onDblClick && openOrShut(box, line);
    case QEvent::MouseMove:  // of a hand that trembles
        return box.onDblClick && line.selectedText() == line.text();
    case QEvent::FocusOut:
        if (isLost(static_cast<QFocusEvent&>(event))) {
            box.loseFocus();
        }
        return false;
    default:
        return false;
    }
}

/// The box of a text with many lines.
QWidget* makeTextArea(TextBox& box, QWidget* parent, const Scale& scale) {
    auto* const widget = new QPlainTextEdit(parent);
    prepare(widget, box, scale);
    widget->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    widget->setTabChangesFocus(true);
    keepInStep(widget, box, [widget, &box] {
        const QSignalBlocker blocker(widget);
        if (textOf(*widget) != box.text()) {
            widget->setPlainText(toQt(box.text()));
        }
        widget->setReadOnly(box.isLocked());
    });
    keepAttached(widget, box.Appended.connect([widget](const std::string& text) {
        const QSignalBlocker blocker(widget);
        QTextCursor end(widget->document());
        end.movePosition(QTextCursor::End);
        end.insertText(toQt(text).remove('\r'));
        widget->verticalScrollBar()->setValue(widget->verticalScrollBar()->maximum());
    }));
    keepAttached(widget, box.Cleared.connect([widget] {
        const QSignalBlocker blocker(widget);
        QTextCursor all(widget->document());
        all.select(QTextCursor::Document);
        all.removeSelectedText();
    }));
    QObject::connect(widget, &QPlainTextEdit::textChanged,
                     [widget, &box] { box.type(textOf(*widget)); });
    new EventHook(widget, [&box](QEvent* event) { return takesEditKeys(*event, box); });
    return widget;
}

}  // namespace

QWidget* makeWidget(TextBox& box, QWidget* parent, const Scale& scale) {
    if (box.design().isMultiline) {
        return makeTextArea(box, parent, scale);
    }
    auto* const widget = new QLineEdit(parent);
    prepare(widget, box, scale);
    const auto show = [widget, &box] {
        const QSignalBlocker blocker(widget);
        if (widget->text() != toQt(box.text())) {
            widget->setText(toQt(box.text()));
            widget->setCursorPosition(0);
        }
        widget->setReadOnly(box.isLocked());
        // What is typed stands in plain letters, what is only shown is shown whole.
        setStretch(*widget, stretchOf(*widget, box.isLocked()));
        QPalette palette = widget->parentWidget()->palette();
        if (box.isLocked() || box.design().isFlat) {
            palette.setColor(QPalette::Base, palette.color(QPalette::Window));
        }
        widget->setPalette(palette);
    };
    keepInStep(widget, box, show);
    keepZoomed(widget, scale, show);
    // Of what a voice writes into it, the line says only that its text is another.
    QObject::connect(widget, &QLineEdit::textChanged, [widget, &box, show](const QString& text) {
        const QString line = oneLine(text);
        box.type(line.toStdString());
        show();  // a locked box takes nothing
        if (line != text) {
            widget->end(false);
        }
    });
    new EventHook(widget, [widget, &box, scale, show](QEvent* event) {
        if (isNewPalette(*event)) {
            show();
        }
        return takeEvent(*event, box, *widget, scale);
    });
    return widget;
}

QWidget* makeWidget(ComboBox& box, QWidget* parent, const Scale& scale) {
    auto* const widget = new QComboBox(parent);
    prepare(widget, box, scale);
    widget->setEditable(true);
    widget->setInsertPolicy(QComboBox::NoInsert);
    widget->setCompleter(nullptr);  // the text is what was typed, and no more
    auto shown = std::make_shared<std::vector<std::string>>();
    keepInStep(widget, box, [widget, &box, shown] {
        const QSignalBlocker blocker(widget);
        if (*shown != box.items()) {
            *shown = box.items();
            widget->clear();
            for (const std::string& item : *shown) {
                widget->addItem(toQt(item));
            }
            const int scrollBar = widget->style()->pixelMetric(QStyle::PM_ScrollBarExtent);
            widget->view()->setMinimumWidth(widget->view()->sizeHintForColumn(0) + scrollBar);
        }
        // The arrow keys go on from the item that the text is, and else begin at the first.
        const QString text = toQt(box.text());
        widget->setCurrentIndex(widget->findText(text, Qt::MatchExactly | Qt::MatchCaseSensitive));
        if (widget->currentText() != text) {
            widget->setEditText(text);
        }
        setStretch(*widget->lineEdit(), stretchOf(*widget->lineEdit(), true));
        // It may be longer than the box still. Without it, the tip of the whole box shows.
        const std::string more = box.toolTip().empty() ? "" : '\n' + box.toolTip();
        widget->lineEdit()->setToolTip(box.text().empty() ? "" : toToolTip(box.text() + more));
    });
    widget->view()->setTextElideMode(Qt::ElideNone);
    new EventHook(widget, [](QEvent* event) { return isRatherOfMenus(*event); });
    QObject::connect(widget, &QComboBox::editTextChanged,
                     [&box](const QString& text) { box.type(oneLine(text).toStdString()); });
    QObject::connect(widget->lineEdit(), &QLineEdit::returnPressed, [&box] { box.pressEnter(); });
    QObject::connect(widget, &QComboBox::activated, [widget, &box](int item) {
        box.choose(static_cast<std::size_t>(item));
        // A name is known by its beginning.
        widget->lineEdit()->setCursorPosition(0);
    });
    return widget;
}

}  // namespace fleetwright
