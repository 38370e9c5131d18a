#pragma once

#include <string>

namespace fleetwright {

/// Takes what Qt, and the libraries behind it, have to say in this thread: as long as this object
/// lives, nothing of that is printed.
class QtMessages {
public:
    QtMessages();
    QtMessages(const QtMessages&) = delete;
    QtMessages& operator=(const QtMessages&) = delete;
    ~QtMessages();

    /// The first warning of a decoder; empty if there was none.
    const std::string& first() const { return m_first; }

    /// Has nothing printed any more, whoever says it, but what ends the process.
    static void silence();

private:
    friend struct QtMessageSink;

    QtMessages* m_outer;
    std::string m_first;
};

}  // namespace fleetwright
