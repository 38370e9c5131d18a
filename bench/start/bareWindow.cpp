// What the program is measured against: as little as Qt needs for a window with the same widgets,
// nodes and pictures. It is told by a file what they are, a line for each:
//
//     widget CLASS [PICTURE]      a widget, with this face
//     node DEPTH PICTURE TEXT     a node of the tree, below the last one that is less deep
//     picture PICTURE             a picture that does not show at once

#include <QApplication>
#include <QFile>
#include <QGroupBox>
#include <QImageReader>
#include <QLabel>
#include <QLineEdit>
#include <QMainWindow>
#include <QMenuBar>
#include <QPushButton>
#include <QRadioButton>
#include <QTextStream>
#include <QToolButton>
#include <QTreeWidget>
#include <QWindow>

#include <cstdlib>

namespace {

QWidget* makeWidget(const QString& kind, const QString& picture) {
    if (kind == "QLabel") {
        return new QLabel("Label");
    }
    if (kind == "QLineEdit") {
        return new QLineEdit("Text");
    }
    if (kind == "QGroupBox") {
        return new QGroupBox("Group");
    }
    if (kind == "QTreeWidget") {
        return new QTreeWidget;
    }
    QAbstractButton* button = nullptr;
    if (kind == "QPushButton") {
        button = new QPushButton;
    } else if (kind == "QToolButton") {
        button = new QToolButton;
    } else if (kind == "QRadioButton") {
        button = new QRadioButton("Option");
    }
    if (button != nullptr && !picture.isEmpty()) {
        button->setIcon(QIcon(picture));
    }
    return button != nullptr ? button : new QWidget;
}

/// A window that is filled by the lines of a file.
class Window : public QMainWindow {
public:
    explicit Window(QTextStream& lines) {
        auto* const inside = new QWidget(this);
        setCentralWidget(inside);
        menuBar()->addMenu("Menu")->addAction("Action");
        for (QString line; lines.readLineInto(&line);) {
            const QString kind = line.section(' ', 0, 0);
            if (kind == "widget") {
                add(makeWidget(line.section(' ', 1, 1), line.section(' ', 2)), inside);
            } else if (kind == "node") {
                addNode(line.section(' ', 1, 1).toInt(), line.section(' ', 2, 2),
                        line.section(' ', 3));
            } else {
                m_pictures.append(QImageReader(line.section(' ', 1)).read());
            }
        }
    }

private:
    /// Places a widget in a grid.
    void add(QWidget* widget, QWidget* inside) {
        constexpr int columns = 8, width = 90, height = 40;
        widget->setParent(inside);
        widget->setGeometry(m_count % columns * width, m_count / columns * height, width, height);
        ++m_count;
        inside->setMinimumSize(columns * width, (m_count / columns + 1) * height);
        if (auto* const tree = qobject_cast<QTreeWidget*>(widget)) {
            tree->setHeaderHidden(true);
            constexpr int pictureSize = 32;
            tree->setIconSize({pictureSize, pictureSize});
            m_tree = tree;
        }
    }

    void addNode(int depth, const QString& picture, const QString& text) {
        auto* const item = new QTreeWidgetItem({text});
        item->setIcon(0, QPixmap::fromImage(QImageReader(picture).read()));
        m_path.resize(depth);
        if (depth == 0) {
            m_tree->addTopLevelItem(item);
        } else {
            m_path.back()->addChild(item);
        }
        m_path.append(item);
    }

    int m_count = 0;
    QTreeWidget* m_tree = nullptr;
    QList<QTreeWidgetItem*> m_path;
    QList<QImage> m_pictures;
};

}  // namespace

int main(int argc, char** argv) {
    const QApplication application(argc, argv);
    QFile file(QApplication::arguments().value(1));
    if (!file.open(QIODevice::ReadOnly)) {
        return 1;
    }
    QTextStream lines(&file);
    Window window(lines);
    window.show();
    // Before the desktop has shown it nothing is painted, whatever is asked for.
    while (!window.windowHandle()->isExposed()) {
        QApplication::processEvents(QEventLoop::WaitForMoreEvents);
    }
    window.repaint();
    std::_Exit(0);  // as the program that is measured; the end is no part of a start
}
