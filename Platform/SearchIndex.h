#pragma once

#include "Platform/PlatformError.h"

#include <QByteArray>
#include <QCoroTask>
#include <QList>

#include <expected>

namespace vantrel {

/// The system's own index of what can be found with its search. Main thread only.
class SearchIndex {
public:
    struct Entry {
        /// Handed back when the user chooses it.
        QString id;
        QString title;
        /// A PNG file.
        QByteArray picture;

        friend bool operator==(const Entry &, const Entry &) = default;
    };

    using Step = QCoro::Task<std::expected<void, PlatformError>>;

    virtual ~SearchIndex() = default;

    /// Removes all that was ever added.
    [[nodiscard]] virtual Step removeAll() = 0;

    /// Adds entries to those that are there, all with the priority 0.
    [[nodiscard]] virtual Step add(QList<Entry> entries) = 0;
};

} // namespace vantrel
