#include "PdfContents.h"

#include <utility>

namespace fleetwright {

void PdfContents::add(const std::string& name, std::size_t page) {
    std::size_t number = 0;
    if (m_count == 1) {
        m_root = m_objects.reserve();
        m_first = m_number = m_objects.reserve();
    }
    if (m_count > 0) {
        number = m_objects.reserve();
        writeLast(number);
    }
    ++m_count;
    m_before = std::exchange(m_number, number);
    m_page = page;
    m_name = name;
}

/// Writes the entry that has waited; `next` is 0 behind it.
void PdfContents::writeLast(std::size_t next) {
    m_objects.write(m_number, "<< /Title " + pdfText(m_name) + " /Parent " + pdfReference(m_root) +
                                  (m_before == 0 ? "" : " /Prev " + pdfReference(m_before)) +
                                  (next == 0 ? "" : " /Next " + pdfReference(next)) + " /Dest [" +
                                  pdfReference(m_page) + " /Fit] >>");
}

std::string PdfContents::finish() {
    if (m_count < 2) {
        return "";
    }
    writeLast(0);
    m_objects.write(m_root, "<< /Type /Outlines /First " + pdfReference(m_first) + " /Last " +
                                pdfReference(m_number) + " /Count " + std::to_string(m_count) +
                                " >>");
    return "\n/Outlines " + pdfReference(m_root);
}

}  // namespace fleetwright
