#pragma once

#include "Platform/LocalFileSystem.h"

#include <QFileInfo>
#include <QStringList>

namespace vantrel::test {

/// The machine's files, of whose steps a test lets one fail. What was asked for is kept: "write Info.plist".
class FailingFileSystem final : public FileSystem {
public:
    /// The step with this number, counted from 1 and from now on, fails and does nothing; none for 0.
    void failAt(int number)
    {
        failing_ = number;
        steps_.clear();
    }

    [[nodiscard]] const QStringList &steps() const { return steps_; }

    [[nodiscard]] Result makeFolder(const QString &path) override
    {
        return step(QStringLiteral("makeFolder"), path, [&] { return files_.makeFolder(path); });
    }
    [[nodiscard]] Result copyProgram(const QString &source, const QString &copy) override
    {
        return step(QStringLiteral("copyProgram"), copy, [&] { return files_.copyProgram(source, copy); });
    }
    [[nodiscard]] Result write(const QString &path, const QByteArray &content, Access access) override
    {
        return step(QStringLiteral("write"), path, [&] { return files_.write(path, content, access); });
    }
    [[nodiscard]] Result removeAttribute(const QString &path, const QString &name) override
    {
        return step(QStringLiteral("removeAttribute ") + name, path,
                    [&] { return files_.removeAttribute(path, name); });
    }
    [[nodiscard]] Result replaceItem(const QString &place, const QString &item) override
    {
        return step(QStringLiteral("replaceItem"), place, [&] { return files_.replaceItem(place, item); });
    }
    [[nodiscard]] Result remove(const QString &path) override
    {
        return step(QStringLiteral("remove"), path, [&] { return files_.remove(path); });
    }

private:
    template <typename Action>
    Result step(const QString &name, const QString &path, const Action &action)
    {
        steps_.append(name + u' ' + QFileInfo(path).fileName());
        if (steps_.size() == failing_)
            return std::unexpected(PlatformError{QStringLiteral("No: ") + steps_.last()});
        return action();
    }

    LocalFileSystem files_;
    QStringList steps_;
    qsizetype failing_ = 0;
};

} // namespace vantrel::test
