#include "QtMessages.h"

#include <QString>
#include <QtGlobal>

#include <atomic>
#include <string_view>
#include <utility>

namespace fleetwright {

/// Where messages go that this program has Qt hand over.
struct QtMessageSink {
    static void take(QtMsgType type, const QMessageLogContext& context, const QString& text) {
        if (type == QtFatalMsg || (taker == nullptr && !isSilent)) {
            otherwise(type, context, text);
        } else if (taker != nullptr && isFault(type, context) && taker->m_first.empty()) {
            taker->m_first = text.simplified().toStdString();
        }
    }

    /// Whether it is said against a picture. Profiles of colours, which are not used, are not.
    static bool isFault(QtMsgType type, const QMessageLogContext& context) {
        return type != QtDebugMsg && type != QtInfoMsg &&
               std::string_view(context.category == nullptr ? "" : context.category) !=
                   "qt.gui.icc";
    }

    /// Whoever took them before.
    static inline const QtMessageHandler otherwise = qInstallMessageHandler(take);
    static inline thread_local QtMessages* taker = nullptr;
    static inline std::atomic<bool> isSilent = false;
};

QtMessages::QtMessages() : m_outer(std::exchange(QtMessageSink::taker, this)) {}

QtMessages::~QtMessages() {
    QtMessageSink::taker = m_outer;
}

void QtMessages::silence() {
    QtMessageSink::isSilent = true;
}

}  // namespace fleetwright
