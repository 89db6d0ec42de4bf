#pragma once

#include "Tests/VantrelKit/TemporaryFolder.h"

#include <QFile>

#include <gtest/gtest.h>
#include <unistd.h>

namespace vantrel::test {

inline constexpr uid_t nobody = 65534;

/// Only root can act as somebody else.
[[nodiscard]] inline bool hasAnotherUser()
{
    return geteuid() == 0;
}

/// Does something as another user if there is one; else as this one.
template <typename Action>
auto asAnotherUser(Action action)
{
    const bool changes = hasAnotherUser();
    if (changes) {
        EXPECT_EQ(seteuid(nobody), 0);
    }
    auto result = action();
    if (changes) {
        EXPECT_EQ(seteuid(0), 0);
    }
    return result;
}

/// A folder of another user's: root gives one away, and other users meet one of root's.
class ForeignFolder {
public:
    ForeignFolder()
    {
        if (hasAnotherUser()) {
            EXPECT_EQ(chown(QFile::encodeName(own_.makeFolder(name())).constData(), nobody, nobody), 0);
        }
    }

    [[nodiscard]] QString path() const { return hasAnotherUser() ? own_.path(name()) : QStringLiteral("/usr"); }

private:
    [[nodiscard]] static QString name() { return QStringLiteral("given"); }

    TemporaryFolder own_;
};

} // namespace vantrel::test
