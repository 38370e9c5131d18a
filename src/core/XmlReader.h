#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace fleetwright {

/// Steps through XML text of any origin, piece by piece, and keeps nothing of it. It follows no
/// definition of an entity, so that no text can grow, and takes what is not well-formed as far as
/// it goes.
class XmlReader {
public:
    enum class Piece { Start, End, Text, Nothing };

    /// The text outlives this.
    explicit XmlReader(std::string_view xml) : m_xml(xml) {}

    /// Steps on; an empty element has a start and an end as well. Nothing behind the last piece,
    /// and where the text is cut short inside one.
    Piece next();
    /// Name of the element that starts or ends, with its prefix.
    std::string_view name() const { return m_name; }
    /// The prefix that the element that starts here declares for a namespace; empty if it is that
    /// of names without one.
    std::optional<std::string_view> prefixFor(std::string_view nameSpace) const;
    /// Text between tags, with the characters in the place of their numbers ("&#65;").
    std::string text() const;
    /// Whether all that has started has ended. Only behind the last piece.
    bool isWhole() const { return m_isWhole && m_depth == 0; }

private:
    Piece tag();
    Piece startTag();
    Piece cutShort();
    bool skip(std::string_view end);
    bool skipDeclaration();

    std::string_view m_xml;  ///< what is still to be read
    std::string_view m_name, m_attributes, m_text;
    bool m_isVerbatim = false;  ///< the text is a CDATA section
    bool m_endsAtOnce = false;  ///< the end of an empty element comes next
    bool m_isWhole = true;
    long m_depth = 0;
};

/// A name without its prefix.
std::string_view localName(std::string_view name);

}  // namespace fleetwright
