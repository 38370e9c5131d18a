#pragma once

#include "Raster.h"
#include "Scale.h"

#include <QImage>
#include <QWidget>

namespace fleetwright {

class Form;

/// What stands inside a window's border, with the form's picture behind the controls.
class FormInside : public QWidget {
public:
    FormInside(const Form& form, const Scale& scale, QWidget* parent);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QImage shown(const Raster& picture, const QSize& size) const;

    const Form& m_form;
    Scale m_scale;
    QImage m_shown;
    Raster::Key m_key{};  // of what is shown
};

}  // namespace fleetwright
