#include "explainedLabel.h"

#include "Label.h"
#include "widgetTools.h"

#include <QAccessible>
#include <QAccessibleWidget>

namespace fleetwright {

namespace {

class ExplainedLabel : public QLabel {
public:
    ExplainedLabel(const Label& label, QWidget* parent) : QLabel(parent), m_label(label) {}

    QString description() const {
        const QString said = toShown(m_label.toolTip());
        return accessibleDescription().isEmpty() ? said : accessibleDescription() + '\n' + said;
    }

private:
    const Label& m_label;
};

class Description : public QAccessibleWidget {
public:
    explicit Description(ExplainedLabel* label)
        : QAccessibleWidget(label, QAccessible::StaticText), m_label(label) {}

    QString text(QAccessible::Text kind) const override {
        switch (kind) {
        case QAccessible::Name:
            return m_label->text();
        case QAccessible::Description:
            return m_label->description();
        default:
            return QAccessibleWidget::text(kind);
        }
    }

    QAccessible::State state() const override {
        QAccessible::State state = QAccessibleWidget::state();
        state.readOnly = true;
        return state;
    }

private:
    ExplainedLabel* m_label;
};

QAccessibleInterface* describe(const QString&, QObject* object) {
    auto* const label = dynamic_cast<ExplainedLabel*>(object);
    return label == nullptr ? nullptr : new Description(label);
}

}  // namespace

QLabel* newExplainedLabel(const Label& label, QWidget* parent) {
    static const bool isInstalled = [] {
        QAccessible::installFactory(describe);
        return true;
    }();
    static_cast<void>(isInstalled);
    return new ExplainedLabel(label, parent);
}

}  // namespace fleetwright
