#include "XmlReader.h"

#include <algorithm>
#include <charconv>
#include <cstddef>

namespace fleetwright {

namespace {

constexpr std::string_view whiteSpace = " \t\r\n";
constexpr std::size_t none = std::string_view::npos;

std::string_view withoutSpaceBehind(std::string_view text) {
    return text.substr(0, text.find_last_not_of(whiteSpace) + 1);
}

/// The ASCII character that "#65" or "#x41" means.
std::optional<char> characterOf(std::string_view reference) {
    if (!reference.starts_with('#')) {
        return std::nullopt;
    }
    const bool isHex = reference.starts_with("#x");
    reference.remove_prefix(isHex ? 2 : 1);
    unsigned code = 0;
    const char* const end = reference.data() + reference.size();
    const auto result = std::from_chars(reference.data(), end, code, isHex ? 16 : 10);
    const bool isAscii = result.ec == std::errc() && result.ptr == end && code < 0x80;
    return isAscii ? std::optional(static_cast<char>(code)) : std::nullopt;
}

}  // namespace

XmlReader::Piece XmlReader::next() {
    if (m_endsAtOnce) {
        m_endsAtOnce = false;
        --m_depth;
        return Piece::End;
    }
    while (!m_xml.empty()) {
        if (!m_xml.starts_with('<')) {
            m_text = m_xml.substr(0, m_xml.find('<'));
            m_isVerbatim = false;
            m_xml.remove_prefix(m_text.size());
            return Piece::Text;
        }
        constexpr std::string_view data = "<![CDATA[", dataEnd = "]]>";
        if (m_xml.starts_with(data)) {
            m_text = m_xml.substr(data.size());
            if (!skip(dataEnd)) {
                return cutShort();
            }
            m_text.remove_suffix(m_xml.size() + dataEnd.size());
            m_isVerbatim = true;
            return Piece::Text;
        }
        if (!m_xml.starts_with("<!") && !m_xml.starts_with("<?")) {
            return tag();
        }
        const bool isSkipped = m_xml.starts_with("<!--") ? skip("-->")
                               : m_xml.starts_with("<?") ? skip("?>")
                                                         : skipDeclaration();
        if (!isSkipped) {
            return cutShort();
        }
    }
    return Piece::Nothing;
}

XmlReader::Piece XmlReader::tag() {
    if (!m_xml.starts_with("</")) {
        return startTag();
    }
    const std::string_view tag = m_xml.substr(2);
    if (!skip(">")) {
        return cutShort();
    }
    m_name = withoutSpaceBehind(tag.substr(0, tag.find('>')));
    --m_depth;
    return Piece::End;
}

XmlReader::Piece XmlReader::startTag() {
    // A ">" between quotation marks does not end it.
    std::size_t end = m_xml.find_first_of("\"'>");
    while (end != none && m_xml[end] != '>') {
        end = m_xml.find(m_xml[end], end + 1);
        end = end == none ? none : m_xml.find_first_of("\"'>", end + 1);
    }
    if (end == none) {
        return cutShort();
    }
    std::string_view tag = m_xml.substr(1, end - 1);
    m_xml.remove_prefix(end + 1);
    m_endsAtOnce = tag.ends_with('/');
    tag.remove_suffix(m_endsAtOnce ? 1 : 0);
    m_name = tag.substr(0, tag.find_first_of(whiteSpace));
    m_attributes = tag.substr(m_name.size());
    ++m_depth;
    return Piece::Start;
}

XmlReader::Piece XmlReader::cutShort() {
    m_isWhole = false;
    m_xml = {};
    return Piece::Nothing;
}

/// Goes behind the next `end`; false if there is none.
bool XmlReader::skip(std::string_view end) {
    const std::size_t at = m_xml.find(end);
    m_xml.remove_prefix(at == none ? 0 : at + end.size());
    return at != none;
}

/// Goes behind a document type, which can hold declarations of its own.
bool XmlReader::skipDeclaration() {
    int open = 0;
    while (!m_xml.empty()) {
        if (m_xml.starts_with("<!--")) {
            if (!skip("-->")) {
                return false;
            }
            continue;
        }
        const char c = m_xml.front();
        m_xml.remove_prefix(1);
        if ((c == '"' || c == '\'') && !skip(std::string_view(&c, 1))) {
            return false;
        }
        open += c == '<' ? 1 : c == '>' ? -1 : 0;
        if (open == 0) {
            return true;
        }
        m_xml.remove_prefix(std::min(m_xml.find_first_of("\"'<>"), m_xml.size()));
    }
    return false;
}

std::optional<std::string_view> XmlReader::prefixFor(std::string_view nameSpace) const {
    constexpr std::string_view declaration = "xmlns";
    for (std::size_t at = m_attributes.find(nameSpace); at != none;
         at = m_attributes.find(nameSpace, at + 1)) {
        const std::string_view behind = m_attributes.substr(at + nameSpace.size());
        std::string_view before = m_attributes.substr(0, at);
        if (before.empty() || behind.empty() || before.back() != behind.front()) {
            continue;  // part of something longer
        }
        before = withoutSpaceBehind(before.substr(0, before.size() - 1));
        if (!before.ends_with('=')) {
            continue;
        }
        before = withoutSpaceBehind(before.substr(0, before.size() - 1));
        constexpr std::size_t longest = 64;  // nobody looks further back, whatever stands there
        before.remove_prefix(before.size() - std::min(before.size(), longest));
        const std::string_view name = before.substr(before.find_last_of(whiteSpace) + 1);
        if (name == declaration) {
            return "";
        }
        if (name.starts_with("xmlns:")) {
            return name.substr(declaration.size() + 1);
        }
    }
    return std::nullopt;
}

std::string XmlReader::text() const {
    if (m_isVerbatim) {
        return std::string(m_text);
    }
    constexpr std::size_t longest = 8;  // of a reference that is read
    std::string text;
    for (std::string_view rest = m_text; !rest.empty();) {
        const std::size_t plain = std::min(rest.find('&'), rest.size());
        text += rest.substr(0, plain);
        rest.remove_prefix(plain);
        const std::size_t size = rest.substr(0, longest).find(';');
        const auto character = size == none ? std::nullopt : characterOf(rest.substr(1, size - 1));
        if (character || !rest.empty()) {
            text += character.value_or('&');
            rest.remove_prefix(character ? size + 1 : 1);
        }
    }
    return text;
}

std::string_view localName(std::string_view name) {
    return name.substr(name.find(':') + 1);
}

}  // namespace fleetwright
