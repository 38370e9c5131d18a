#pragma once

#include "PagePrinter.h"

#include <memory>

class QPrinter;

namespace fleetwright {

/// Prints through the system's print service, with the dialogs of the desktop.
class QtPagePrinter : public PagePrinter {
public:
    QtPagePrinter();
    QtPagePrinter(const QtPagePrinter&) = delete;
    QtPagePrinter& operator=(const QtPagePrinter&) = delete;
    ~QtPagePrinter() override;

    Printout print(const Layout& layout) override;
    Printout preview(const Layout& layout) override;
    void writePdf(const PageDocument& document,
                  const std::function<void(std::string_view)>& out) override;

private:
    QPrinter& printer();
    /// Sends pages where the user has chosen.
    Printout send(const Layout& layout);

    std::unique_ptr<QPrinter> m_printer;  ///< as the user has chosen it last
};

}  // namespace fleetwright
