#include "FormWindowTest.h"

#include "TemporaryFolder.h"
#include "contrast.h"

#include <QAbstractButton>
#include <QAccessible>
#include <QAction>
#include <QApplication>
#include <QDropEvent>
#include <QFileInfo>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QMimeData>
#include <QRadioButton>
#include <QScreen>
#include <QSlider>
#include <QStyle>
#include <QTest>
#include <QTreeWidget>
#include <QUrl>

using namespace fleetwright;

TEST_F(FormWindowTest, WidgetsStandWhereTheFormPutsThem) {
    const auto* const frame = find<QGroupBox>("frame");
    ASSERT_NE(frame, nullptr);
    EXPECT_EQ(frame->title(), "Frame");
    EXPECT_EQ(find<QLabel>("label")->parent(), frame);
    const double scale = frame->width() / (3000 / 15.0);
    EXPECT_GE(scale, 1.0);
    EXPECT_NEAR(find<QTreeWidget>("list")->x(), 3300 / 15.0 * scale, 1.0);
    EXPECT_EQ(window.windowTitle(), "All kinds");
    form.setCaption("Renamed");
    EXPECT_EQ(window.windowTitle(), "Renamed");
    EXPECT_EQ(window.minimumSize(), window.maximumSize());
    EXPECT_EQ(find<QAbstractButton>("button")->toolTip(), "Tip");
    EXPECT_EQ(find<QAbstractButton>("arrowsDown")->toolTip(), "Spin");
    form.slider.setSteps(3, 4);
    EXPECT_EQ(find<QSlider>("slider")->tickInterval(), 3);
    QApplication::processEvents();  // until when the window has not its size yet
    EXPECT_EQ(find<QLabel>("status")->geometry().bottom() + 1,
              find<QLabel>("status")->parentWidget()->height());
}

TEST_F(FormWindowTest, TextsFromOthersDoNothingButShow) {
    const std::string text = "<b>A</b>\x1B\u202E";
    form.button.setToolTip(text);
    form.list.add("a", text, text);
    form.verbatim.setCaption("A\tB & C");
    form.status.setText(std::string(200, 'W') + text);
    const QString tip = "<p>&lt;b&gt;A&lt;/b&gt;\uFFFD\uFFFD</p>";
    EXPECT_EQ(find<QAbstractButton>("button")->toolTip().remove('\n'), tip);
    const auto* const row = find<QTreeWidget>("list")->topLevelItem(0);
    EXPECT_EQ(row->text(0) + row->text(1), QString("<b>A</b>\uFFFD\uFFFD").repeated(2));
    EXPECT_EQ(window.findChild<QAction*>("verbatim")->text(), "A\uFFFDB && C");
    const QString whole = find<QLabel>("status")->toolTip().remove("<br>\n");
    EXPECT_TRUE(whole.contains("&lt;b&gt;A&lt;/b&gt;\uFFFD")) << whole.toStdString();
}

TEST_F(FormWindowTest, EnterAndEscapeAnswerDialogs) {
    window.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    find<QTreeWidget>("list")->setFocus();
    QTest::keyClick(find<QSlider>("slider"), Qt::Key_Return);
    EXPECT_EQ(takeLog(), "button ");
    find<QAbstractButton>("cancel")->setFocus();
    QTest::keyClick(find<QAbstractButton>("cancel"), Qt::Key_Return);
    EXPECT_EQ(takeLog(), "cancel ");
    QTest::keyClick(&window, Qt::Key_Escape);
    EXPECT_EQ(takeLog(), "cancel ");
    // Keys that are off are the menu's, and the other way round.
    QTest::keyClick(&window, Qt::Key_R, Qt::ControlModifier);
    EXPECT_EQ(takeLog(), "formkey verbatim ");
    form.verbatim.setEnabled(false);
    form.keys.setEnabled(true);
    QTest::keyClick(&window, Qt::Key_R, Qt::ControlModifier);
    EXPECT_EQ(takeLog(), "formkey keys ");
}

TEST_F(FormWindowTest, AWarningCanBeReadAndToldApartInEachTheme) {
    const auto colour = [this] { return find<QLabel>("label")->palette().windowText().color(); };
    form.label.setAlarming(true);
    for (const QPalette& theme : {QPalette(Qt::white), QPalette(QColor(45, 45, 48)), QPalette()}) {
        QApplication::setPalette(theme);
        const QPalette& shown = find<QGroupBox>("frame")->palette();
        EXPECT_GE(contrast(colour(), shown.window().color()), readableContrast);
        EXPECT_NE(colour(), shown.windowText().color());
        const QPalette& menu = find<QMenu>("menu")->palette();
        EXPECT_EQ(menu.color(QPalette::Disabled, QPalette::Light).alpha(), 0);
        EXPECT_EQ(menu.window().color(), shown.window().color());
        for (const QPalette& each : {menu, window.palette()}) {
            EXPECT_GE(contrast(each.highlight().color(), each.highlightedText().color()),
                      readableContrast);
        }
    }
    form.label.setAlarming(false);
    EXPECT_EQ(colour(), find<QGroupBox>("frame")->palette().windowText().color());
}

TEST_F(FormWindowTest, AFaceThatIsDownHasItsGroundInTheStylesOfWindows) {
    const QString usual = QApplication::style()->name();
    QApplication::setStyle("windows");
    auto* const faced = find<QRadioButton>("faced");
    ASSERT_TRUE(faced->isChecked());
    const QRgb ground = faced->palette().color(QPalette::Button).rgb();
    EXPECT_EQ(faced->grab().toImage().pixel(1, 1), ground);
    EXPECT_NE(ground, window.palette().color(QPalette::Button).rgb());
    QApplication::setStyle(usual);
}

TEST_F(FormWindowTest, OnlyMovingTheFocusInsideTheWindowLosesIt) {
    int lost = 0;
    form.text.onLostFocus = [&] { ++lost; };
    auto* const text = find<QLineEdit>("text");
    QFocusEvent toAnotherProgram(QEvent::FocusOut, Qt::ActiveWindowFocusReason);
    QFocusEvent toAMenu(QEvent::FocusOut, Qt::MenuBarFocusReason);
    QFocusEvent byTab(QEvent::FocusOut, Qt::TabFocusReason);
    QApplication::sendEvent(text, &toAnotherProgram);
    QApplication::sendEvent(text, &toAMenu);
    EXPECT_EQ(lost, 0);
    QApplication::sendEvent(text, &byTab);
    EXPECT_EQ(lost, 1);
}

TEST_F(FormWindowTest, FilesMayBeDroppedAnywhereAndStayWhereTheyAre) {
    const TemporaryFolder folder;
    const QString path = QString::fromStdString(folder.write("Né 1.shp", ""));
    const QUrl file = QUrl::fromLocalFile(path), web("https://host.example/a.shp");
    const auto dropped = [this](const char* target, const QList<QUrl>& urls,
                                Qt::DropActions actions = Qt::MoveAction | Qt::CopyAction) {
        QMimeData data;
        data.setUrls(urls);
        QDragEnterEvent enter({}, actions, &data, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(find<QWidget>(target), &enter);
        QDropEvent drop({}, actions, &data, Qt::LeftButton, Qt::NoModifier);
        if (enter.isAccepted()) {
            QApplication::sendEvent(&window, &drop);
            EXPECT_EQ(drop.dropAction(), Qt::CopyAction);
        }
        EXPECT_EQ(takeLog(), "") << "it is dealt with behind the drop";
        QApplication::processEvents();
        return QString::fromStdString(takeLog());
    };
    for (const char* const target : {"label", "name", "list", "tree", "button"}) {
        EXPECT_EQ(dropped(target, {file, file}), path + path);
    }
    EXPECT_EQ(dropped("label", {file}, Qt::MoveAction), "");
    EXPECT_EQ(dropped("label", {file, web}) + dropped("label", {}), "");
    EXPECT_EQ(dropped("label", {QUrl::fromLocalFile(QFileInfo(path).path())}), "") << "a folder";
}

TEST_F(FormWindowTest, ATextThatIsOnlyShownIsShownWhole) {
    auto& name = *find<QLineEdit>("name");
    const auto textWidth = [&] { return name.fontMetrics().horizontalAdvance(name.text()); };
    while (textWidth() < name.width()) {
        form.name.setText(form.name.text() + 'n');
    }
    form.name.setLocked(true);
    EXPECT_LT(textWidth(), name.width());
    form.name.setLocked(false);
    EXPECT_GE(textWidth(), name.width()) << "what is typed stands in plain letters";
}

TEST_F(FormWindowTest, ALongTextGetsTheRoomBesideItAndThenNarrowerLetters) {
    const auto* const label = find<QLabel>("label");
    const QRect place = label->geometry();
    const int room = find<QGroupBox>("inner")->x() - place.x();
    std::string caption = "n";
    for (int stretch = 0; stretch == 0; caption += 'n') {
        form.label.setCaption(caption);
        stretch = label->font().stretch() == QFont().stretch() ? 0 : label->font().stretch();
        EXPECT_EQ(label->geometry().topLeft(), place.topLeft());
        EXPECT_TRUE(label->width() >= place.width() && label->width() < room) << caption;
        EXPECT_LE(label->sizeHint().width(), label->width()) << caption;
    }
    EXPECT_GT(label->width(), place.width());
    form.label.setCaption(std::string(100, 'n'));
    EXPECT_EQ(label->font().stretch(), 60);
    EXPECT_LT(label->width(), room);
}

TEST(FormWindow, AHeadingIsLargerThanTheRest) {
    Form form({.name = "frmHeaded"});
    const Label heading(
        form, {.name = "heading", .place = {0, 0, 3000, 600}, .caption = "H", .isHeading = true});
    const FormWindow window(form);
    const QFont font = window.findChild<QLabel*>("heading")->font();
    EXPECT_GT(font.pointSizeF(), 1.5 * window.font().pointSizeF());
    EXPECT_TRUE(font.bold());
}

TEST_F(FormWindowTest, FramesHaveTheirCaptionInTheirUpperEdge) {
    auto* const frame = find<QGroupBox>("frame");
    const QFontMetrics metrics = frame->fontMetrics();
    const int line = metrics.height() / 2, right = frame->width() - 1, bottom = frame->height() - 1;
    const int gapEnd = 8 + metrics.horizontalAdvance("Frame") + 2 * 3;  // with what is round
    for (const bool isEnabled : {true, false}) {
        form.frame.setEnabled(isEnabled);
        const QImage shown = frame->grab().toImage();
        const QColor ground = frame->palette().color(QPalette::Window);
        const auto isDrawn = [&](int x, int y) {
            return contrast(shown.pixelColor(x, y), ground) >= edgeContrast;
        };
        EXPECT_TRUE(isDrawn(5, line) && isDrawn(gapEnd + 1, line) && isDrawn(right - 5, line));
        EXPECT_TRUE(isDrawn(0, bottom / 2) && isDrawn(right, bottom / 2));
        EXPECT_TRUE(isDrawn(right / 2, bottom));
        EXPECT_FALSE(isDrawn(9, line) || isDrawn(gapEnd - 2, line)) << "the caption has room";
        EXPECT_FALSE(isDrawn(0, bottom) || isDrawn(right, line)) << "corners are round";
        EXPECT_FALSE(isDrawn(5, line - 1) || isDrawn(right / 2, bottom - 1));
        double best = 1;
        for (int x = 10; x < gapEnd - 2; ++x) {
            best = std::max(best, contrast(shown.pixelColor(x, line), ground));
        }
        EXPECT_GE(best, isEnabled ? readableContrast : 1.3);
        EXPECT_LT(best, isEnabled ? 21 : readableContrast);
    }
}

TEST_F(FormWindowTest, TheStatusLineSaysWhatIsNewAndOfManyTextsTheLast) {
    const auto* const notice = find<QLabel>("status")->findChild<QWidget*>();
    const auto said = [notice] { return notice->accessibleName().toStdString(); };
    EXPECT_EQ(QAccessible::queryAccessibleInterface(const_cast<QWidget*>(notice))->role(),
              QAccessible::Notification);
    EXPECT_EQ(notice->size(), QSize(1, 1));
    form.status.setText("Saved");
    EXPECT_EQ(said(), "Saved");
    form.status.setTextQuietly("Known");
    form.status.tell("One");
    QTest::qWait(1);
    form.status.tell("Two");
    EXPECT_EQ(said(), "Saved") << "more may follow";
    EXPECT_TRUE(QTest::qWaitFor([&] { return said() != "Saved"; }));
    EXPECT_EQ(said(), "Two");
    form.status.setVisible(false);
    form.status.setText("Hidden");
    form.status.tell("Hidden");
    QTest::qWait(400);
    EXPECT_EQ(said(), "Two");
}

TEST_F(FormWindowTest, PicturesAreAsLargeOnTheScreenAsTheyAre) {
    auto* const box = find<QFrame>("picture");
    Raster picture(120, 40);
    picture.pixel(119, 39) = 0xFF0000;
    form.picture.setPicture(picture);
    EXPECT_EQ(box->size(), QSize(120, 40));
    EXPECT_EQ(box->grab().toImage().pixelColor(119, 39), QColor(Qt::red));
    form.picture.paintStretch(100, 39, 50, 0x0000FF);
    form.picture.showPainted();
    EXPECT_EQ(box->grab().toImage().pixelColor(119, 39), QColor(Qt::blue));
    EXPECT_EQ(box->grab().toImage().pixelColor(99, 39), QColor(Qt::white));
    // Also where only a part is painted, and smoothed.
    for (int y = 0; y < 40; ++y) {
        for (int x = 0; x < 120; ++x) {
            picture.pixel(x, y) = static_cast<std::uint32_t>((x * 2) << 16 | (y * 6));
        }
    }
    form.picture.setPicture(picture);
    for (const int percent : {100, 125, 200}) {
        form.setZoom(Zoom(percent));
        const QImage whole = box->grab().toImage();
        for (const QRect& part :
             {QRect(0, 0, 30, 20), QRect(33, 7, 41, 13), QRect(90, 20, 30, 20)}) {
            const QImage grabbed = box->grab(part).toImage();
            for (int x = 0; x < part.width(); ++x) {
                const QColor one = grabbed.pixelColor(x, part.height() / 2);
                const QColor other = whole.pixelColor(part.x() + x, part.center().y() + 1);
                EXPECT_NEAR(one.red(), other.red(), 8) << percent << ": " << part.x() + x;
                EXPECT_NEAR(one.blue(), other.blue(), 14);
            }
        }
    }
}

TEST_F(FormWindowTest, NoTimerRunsIntoRulesThatPaint) {
    form.ticks = 0;
    QTest::qSleep(30);
    form.repaint();
    EXPECT_EQ(form.ticks, 0);
    EXPECT_TRUE(QTest::qWaitFor([&] { return form.ticks > 0; }));
}

TEST_F(FormWindowTest, MenusTimersAndClosing) {
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    QTest::keyClick(&window, Qt::Key_F10);
    EXPECT_EQ(window.menuBar()->activeAction(), find<QMenu>("menu")->menuAction());
    EXPECT_EQ(find<QMenu>("menu")->activeAction()->text(), "Entry");
    find<QMenu>("menu")->hide();
    EXPECT_EQ(window.menuBar()->actions().size(), 1);
    EXPECT_TRUE(QTest::qWaitFor([&] { return form.ticks > 1; }));
    form.keeps = true;
    EXPECT_FALSE(window.close());
    EXPECT_TRUE(window.isVisible());
    form.keeps = false;
    EXPECT_TRUE(window.close());
    EXPECT_FALSE(form.isVisible());
    // What is unloaded has nothing left to do.
    form.ticks = 0;
    QTest::qWait(50);
    EXPECT_EQ(form.ticks, 0);
    form.show();
    EXPECT_TRUE(window.isVisible());
    form.hide();
    EXPECT_FALSE(window.isVisible());
}

TEST_F(FormWindowTest, StaysOnTheScreenWhenItComesToTheTop) {
    const WId handle = window.winId();
    for (const bool isTopmost : {true, false}) {
        form.setTopmost(isTopmost);
        EXPECT_TRUE(window.isVisible());
        EXPECT_EQ(window.windowFlags().testFlag(Qt::WindowStaysOnTopHint), isTopmost);
        EXPECT_EQ(window.winId(), handle);
    }
}

TEST_F(FormWindowTest, StaysOnTheScreenAsAWholeWhenItsFormGrows) {
    const QRect room = window.screen()->availableGeometry();
    window.move(room.center());
    form.resize(form.width() + 300, form.height() + 300);
    EXPECT_EQ(window.frameGeometry() | room, room);
    window.move(room.topLeft() - QPoint(20, 30));
    form.resize(form.width() + 300, form.height() + 300);
    EXPECT_EQ(window.frameGeometry().topLeft(), room.topLeft());
}

// As a click does that comes before the screen knows that the menu is closed.
TEST_F(FormWindowTest, AClosedMenuHandsClicksOnToWhatIsBelow) {
    auto* const menu = find<QMenu>("menu");
    const QPoint place = find<QWidget>("button")->mapToGlobal(QPoint(5, 5));
    const auto click = [&] {
        for (const auto type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease}) {
            const bool isPress = type == QEvent::MouseButtonPress;
            QMouseEvent event(type, menu->mapFromGlobal(place), place, Qt::LeftButton,
                              isPress ? Qt::LeftButton : Qt::NoButton, Qt::NoModifier);
            QApplication::sendEvent(menu, &event);
        }
    };
    menu->popup({});
    click();  // which closes it
    EXPECT_EQ(takeLog(), "");
    click();
    EXPECT_EQ(takeLog(), "button ");
}
