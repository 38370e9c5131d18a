#include "QtDesktop.h"

#include "Form.h"
#include "FormWindow.h"
#include "Menu.h"
#include "controlWidgets.h"
#include "widgetTools.h"

#include <QApplication>
#include <QCursor>
#include <QEventLoop>
#include <QMessageBox>

namespace fleetwright {

QtDesktop::QtDesktop() = default;

QtDesktop::~QtDesktop() = default;

void QtDesktop::present(Form& form) {
    m_windows[&form] = std::make_unique<FormWindow>(form);
}

void QtDesktop::dismiss(Form& form) {
    m_windows.erase(&form);
}

Answer QtDesktop::showMessage(const std::string& text, const std::string& title, Buttons buttons,
                              Icon icon) {
    QMessageBox box(QApplication::activeWindow());
    box.setWindowTitle(title.empty() ? QApplication::applicationName() : toQt(title));
    box.setText(toQt(text));
    switch (icon) {
    case Icon::None:
        break;
    case Icon::Information:
        box.setIcon(QMessageBox::Information);
        break;
    case Icon::Critical:
        box.setIcon(QMessageBox::Critical);
        break;
    }
    if (buttons == Buttons::Ok) {
        box.setStandardButtons(QMessageBox::Ok);
        box.exec();
        return Answer::Ok;
    }
    box.setStandardButtons(QMessageBox::Yes | QMessageBox::No);
    box.setEscapeButton(QMessageBox::No);
    return box.exec() == QMessageBox::Yes ? Answer::Yes : Answer::No;
}

void QtDesktop::popUp(MenuEntry& menu) {
    // A menu that was asked for by a key opens at what has the keyboard.
    const QWidget* const focus = QApplication::focusWidget();
    const bool isUnderPointer = focus != nullptr && focus->underMouse();
    popUpMenu(menu, focus == nullptr || isUnderPointer
                        ? QCursor::pos()
                        : focus->mapToGlobal(focus->rect().center()));
}

void QtDesktop::showModal(Form& form, Form& owner) {
    const auto ownerWindow = m_windows.find(&owner);
    FormWindow window(form, ownerWindow == m_windows.end() ? nullptr : ownerWindow->second.get());
    QEventLoop loop;
    const Connection ended = form.Changed.connect([&] {
        if (!form.isVisible()) {
            loop.quit();
        }
    });
    m_dialogs.push_back(&form);
    form.show();
    loop.exec();
    std::erase(m_dialogs, &form);
}

void QtDesktop::unloadAllForms() {
    std::vector<Form*> forms = m_dialogs;
    for (const auto& [form, window] : m_windows) {
        forms.push_back(form);
    }
    for (Form* const form : forms) {
        form->unload();  // the one that is going already is left alone
    }
    QApplication::quit();
}

}  // namespace fleetwright
