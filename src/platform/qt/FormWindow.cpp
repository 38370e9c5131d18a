#include "FormWindow.h"

#include "Form.h"
#include "FormInside.h"
#include "Frame.h"
#include "Timer.h"
#include "contrast.h"
#include "controlWidgets.h"
#include "widgetTools.h"

#include <QApplication>
#include <QCloseEvent>
#include <QLayout>
#include <QScopedValueRollback>
#include <QScreen>
#include <QScrollArea>
#include <QStyle>
#include <QTimer>
#include <QWindow>

namespace fleetwright {

namespace {

/// The view of a form's inside, which scrolls only where the screen is too small for the form.
class View : public QScrollArea {
public:
    View(QWidget* inside, QWidget* parent) : QScrollArea(parent) {
        setFrameShape(QFrame::NoFrame);
        setFocusPolicy(Qt::NoFocus);
        setWidget(inside);
    }

protected:
    // Keys are the form's.
    void keyPressEvent(QKeyEvent* event) override { event->ignore(); }
};

/// A window that the rules have just asked to paint waits for the desktop. The rules are in the
/// middle of their work then, and no timer may run into them.
bool isAwaitingDesktop = false;

}  // namespace

FormWindow::FormWindow(Form& form, QWidget* owner, WhatsThisText whatsThis,
                       const Drawings* drawings)
    : QMainWindow(owner), m_form(form), m_scale(form.place().width, form.place().height, drawings),
      m_inside(new FormInside(form, m_scale, this)), m_whatsThis(std::move(whatsThis)) {
    setObjectName(toQt(form.name()));
    setPalette(readableColours(QApplication::palette()));
    setFrame(owner);
    m_inside->resize(formSize());
    addControls(form, m_inside);
    explainMenus(*this, form, m_whatsThis);
    setCentralWidget(new View(m_inside, this));
    if (form.border() != Border::None) {
        addZoomKeys();
        followZoom();
    }
    const QSize size = fitting(m_inside->size());
    if (form.border() == Border::Sizable) {
        resize(size + menuSize());
    } else {
        // A fixed border: the window is as large as its inside.
        centralWidget()->setFixedSize(size);
        layout()->setSizeConstraint(QLayout::SetFixedSize);
    }
    takeDroppedFiles(form, this);
    update();
    m_connections.push_back(form.Changed.connect([this] { update(); }));
    m_connections.push_back(form.Raised.connect([this] { raiseAndActivate(); }));
    m_connections.push_back(form.Zoomed.connect([this] { followZoom(); }));
    m_connections.push_back(form.RepaintWanted.connect([this] { repaintNow(); }));
}

void FormWindow::setFrame(QWidget* owner) {
    if (owner != nullptr) {
        // Its owner alone would not do: another window could change what the dialog is about.
        setWindowModality(Qt::ApplicationModal);
        setWindowFlag(Qt::Dialog);
    }
    switch (m_form.border()) {
    case Border::Fixed:
        setWindowFlag(Qt::WindowMinMaxButtonsHint, false);
        break;
    case Border::FixedMin:
        setWindowFlag(Qt::WindowMaximizeButtonHint, false);
        break;
    case Border::Sizable:
        break;
    case Border::None:
        setWindowFlag(Qt::SplashScreen);
        break;
    }
}

void FormWindow::addControls(Container& container, QWidget* parent) {
    QWidget* before = nullptr;
    for (Control* const control : container.controls()) {
        QWidget* const widget = addControl(*control, parent);
        if (widget == nullptr) {
            continue;
        }
        if (before != nullptr) {
            setTabOrder(before, widget);
        }
        before = widget;
        if (parent == m_inside && m_form.border() == Border::Sizable) {
            m_connections.push_back(control->Changed.connect([this] { resizeInside(); }));
        }
    }
}

/// The widget of a control, or nothing for those that have none of their own.
QWidget* FormWindow::addControl(Control& control, QWidget* parent) {
    if (auto* const timer = dynamic_cast<Timer*>(&control)) {
        addTimer(*timer);
        return nullptr;
    }
    QWidget* const widget = makeWidget(control, parent, m_scale, *this);
    if (widget != nullptr) {
        explainWidget(widget, control, m_whatsThis);
    }
    if (auto* const frame = dynamic_cast<Frame*>(&control)) {
        addControls(*frame, widget);
    }
    return widget;
}

void FormWindow::addTimer(Timer& timer) {
    auto* const ticking = new QTimer(this);
    ticking->setInterval(timer.interval());
    QObject::connect(ticking, &QTimer::timeout, [this, &timer] {
        if (m_form.isLoaded() && !isAwaitingDesktop) {
            timer.tick();
        }
    });
    m_connections.push_back(timer.Restarted.connect([ticking] { ticking->start(); }));
    // One that is off does not wake the machine.
    const auto follow = [ticking, &timer] {
        if (timer.isEnabled() != ticking->isActive()) {
            timer.isEnabled() ? ticking->start() : ticking->stop();
        }
    };
    follow();
    m_connections.push_back(timer.Changed.connect(follow));
}

void FormWindow::update() {
    const QScopedValueRollback<bool> updating(m_isUpdating, true);
    setWindowTitle(toQt(m_form.caption()));
    updateSize();
    updatePlace();
    updateTopmost();
    updateState();
    m_inside->update();
    if (m_form.isVisible() && !isVisible()) {
        show();
    } else if (!m_form.isVisible() && isVisible()) {
        hide();
    }
}

/// How large the view of an inside of the given size is: as large, or what the screen has room for.
QSize FormWindow::fitting(const QSize& inside) const {
    constexpr QSize usualFrame(10, 40);  // until the desktop has given the window one
    const QSize frame = (frameGeometry().size() - geometry().size()).expandedTo(usualFrame);
    const QSize room = screen()->availableSize() - frame - menuSize();
    const int scrollBar = centralWidget()->style()->pixelMetric(QStyle::PM_ScrollBarExtent);
    QSize view = inside;
    if (inside.height() > room.height()) {
        view.rwidth() += scrollBar;
    }
    if (view.width() > room.width()) {
        view.rheight() += scrollBar;
    }
    return view.boundedTo(room);
}

/// How high the menus above the view are, which the hint of their size is not in all styles.
QSize FormWindow::menuSize() const {
    return {0, menuWidget() == nullptr ? 0 : menuWidget()->heightForWidth(width())};
}

QSize FormWindow::formSize() const {
    return m_scale.rect(m_form.place()).size();
}

/// A window that the user has sized, or maximized, may be too small for what its form has since
/// come to hold. It scrolls then.
void FormWindow::resizeInside() {
    QSize size = formSize();
    if (m_form.border() == Border::Sizable) {
        QRect controls;
        for (const QWidget* const widget :
             m_inside->findChildren<QWidget*>(Qt::FindDirectChildrenOnly)) {
            const bool counts = !widget->isHidden() && !widget->property(followsWindow).toBool();
            controls |= counts ? widget->geometry() : QRect();
        }
        size = size.expandedTo(QSize(controls.right() + 1, controls.bottom() + 1));
    }
    m_inside->resize(size);
}

void FormWindow::updateSize() {
    resizeInside();
    const QSize view = fitting(formSize());
    if (view == centralWidget()->size() || m_form.state() != WindowState::Normal) {
        return;
    }
    if (m_form.border() == Border::Sizable) {
        resize(view + menuSize());
    } else {
        centralWidget()->setFixedSize(view);
        layout()->activate();
    }
    keepOnScreen();
}

/// Where a form stands is counted in its twips, or in those of its owner, which has put it there.
const Scale& FormWindow::placeScale() const {
    const auto* const owner = dynamic_cast<const FormWindow*>(parentWidget());
    return owner == nullptr ? m_scale : owner->m_scale;
}

void FormWindow::updatePlace() {
    if (const QPoint place(m_form.left(), m_form.top()); place != m_formPlace) {
        m_formPlace = place;
        move(placeScale().pixels(place.x()), placeScale().pixels(place.y()));
    }
    if (m_form.border() == Border::None && !isVisible()) {
        QRect centred(QPoint(), m_inside->size());
        centred.moveCenter(screen()->availableGeometry().center());
        move(centred.topLeft());
    }
}

void FormWindow::updateTopmost() {
    const bool isTopmost = m_form.isTopmost();
    if (isTopmost == windowFlags().testFlag(Qt::WindowStaysOnTopHint)) {
        return;
    }
    if (windowHandle() == nullptr) {
        setWindowFlag(Qt::WindowStaysOnTopHint, isTopmost);
        return;
    }
    // Without making the window anew, which would flicker and lose the keyboard.
    windowHandle()->setFlag(Qt::WindowStaysOnTopHint, isTopmost);
    overrideWindowFlags(windowHandle()->flags());
}

void FormWindow::updateState() {
    Qt::WindowStates states = windowState() & ~(Qt::WindowMinimized | Qt::WindowMaximized);
    if (m_form.state() == WindowState::Minimized) {
        states |= Qt::WindowMinimized;
    } else if (m_form.state() == WindowState::Maximized) {
        states |= Qt::WindowMaximized;
    }
    if (states != windowState()) {
        setWindowState(states);
    }
}

void FormWindow::raiseAndActivate() {
    if (isVisible() && m_form.state() != WindowState::Minimized) {
        raise();
        activateWindow();
        if (QGuiApplication::focusWindow() == windowHandle()) {
            // Hidden and shown again before the desktop took the keyboard from it, the window will
            // not hear of the keyboard again, and has to be made the active one by hand.
            QT_WARNING_PUSH
            QT_WARNING_DISABLE_DEPRECATED
            QApplication::setActiveWindow(this);
            QT_WARNING_POP
        }
    }
}

void FormWindow::repaintNow() {
    const QScopedValueRollback<bool> awaiting(isAwaitingDesktop, true);
    // A window that has just come, or has another size, waits for the desktop to give it that.
    constexpr int longestWait = 200, step = 10;  // milliseconds
    QElapsedTimer waiting;
    waiting.start();
    while (isVisible() && windowHandle() != nullptr &&
           (!windowHandle()->isExposed() || windowHandle()->size() != size()) &&
           waiting.elapsed() < longestWait) {
        QApplication::processEvents(
            QEventLoop::ExcludeUserInputEvents | QEventLoop::WaitForMoreEvents, step);
    }
    // Only what has changed: the start asks for this with each system.
    QEvent request(QEvent::UpdateRequest);
    QApplication::sendEvent(this, &request);
}

bool FormWindow::event(QEvent* event) {
    if (event->type() == QEvent::WindowActivate && m_form.isVisible()) {
        m_form.activate();
    } else if (event->type() == QEvent::ApplicationPaletteChange) {
        setPalette(readableColours(QApplication::palette()));
    }
    return QMainWindow::event(event);
}

void FormWindow::changeEvent(QEvent* event) {
    QMainWindow::changeEvent(event);
    if (event->type() == QEvent::WindowStateChange && !m_isUpdating) {
        noteState(isMinimized()   ? WindowState::Minimized
                  : isMaximized() ? WindowState::Maximized
                                  : WindowState::Normal);
    }
}

/// A form lays itself out in a maximized window, too, and then has the size again that it had.
void FormWindow::noteState(WindowState state) {
    const bool wasMaximized = m_form.state() == WindowState::Maximized;
    if (state == WindowState::Maximized && !wasMaximized) {
        m_usualSize = {m_form.width(), m_form.height()};
    }
    m_form.setState(state);
    if (wasMaximized && state == WindowState::Normal && m_form.border() == Border::Sizable) {
        m_form.resize(m_usualSize.width(), m_usualSize.height());
    }
}

void FormWindow::keyPressEvent(QKeyEvent* event) {
    if (event->matches(QKeySequence::WhatsThis)) {
        explainFocused();
        return;
    }
    m_form.pressKey();
    QMainWindow::keyPressEvent(event);
}

void FormWindow::moveEvent(QMoveEvent* event) {
    QMainWindow::moveEvent(event);
    notePlace();
}

/// Where the user has moved the window; the form learns it without moving anything itself.
void FormWindow::notePlace() {
    m_formPlace = {static_cast<int>(placeScale().twips(pos().x())),
                   static_cast<int>(placeScale().twips(pos().y()))};
    m_form.moveTo(m_formPlace.x(), m_formPlace.y());
}

void FormWindow::resizeEvent(QResizeEvent* event) {
    QMainWindow::resizeEvent(event);
    if (m_form.border() != Border::Sizable || m_isUpdating ||
        m_form.state() == WindowState::Minimized) {
        return;
    }
    const Place& form = m_form.place();
    const QSize own = formSize();
    const QSize expected = fitting(own);
    const QSize size = centralWidget()->size();
    if (size == expected || isStubborn(size)) {
        return;
    }
    // Where the edge has not moved, the form keeps its size, which the screen may have no room for.
    const QSize bars = (expected - own).expandedTo(QSize(0, 0));
    const int width = size.width() == expected.width()
                          ? form.width
                          : static_cast<int>(m_scale.twips(size.width() - bars.width()));
    const int height = size.height() == expected.height()
                           ? form.height
                           : static_cast<int>(m_scale.twips(size.height() - bars.height()));
    m_form.resize(width + Form::frameWidth, height + Form::frameHeight);
}

/// Whether the desktop keeps the window at a size that the form has refused again and again: it
/// would go on so for ever, as desktops do that lay out windows themselves.
bool FormWindow::isStubborn(const QSize& size) {
    constexpr int patience = 5;
    constexpr int shortTime = 500;  // milliseconds
    if (size != m_offered || !m_sinceOffer.isValid() || m_sinceOffer.hasExpired(shortTime)) {
        m_offered = size;
        m_offers = 0;
    }
    m_sinceOffer.start();
    return ++m_offers > patience;
}

void FormWindow::showEvent(QShowEvent* event) {
    QMainWindow::showEvent(event);
    if (QApplication::platformName() == "windows") {
        keepOnScreen();  // on which that system does not always put the whole of a new window
    }
    m_form.paint();
}

void FormWindow::closeEvent(QCloseEvent* event) {
    // The form decides; if it goes, it hides this window itself.
    event->ignore();
    if (m_form.unload()) {
        event->accept();
    }
}

}  // namespace fleetwright
