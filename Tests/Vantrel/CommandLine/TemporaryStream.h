#pragma once

#include <QByteArray>
#include <QString>

#include <gtest/gtest.h>

#include <cstdio>
#include <memory>

namespace vantrel::test {

/// A file without a name, in the place of a program's output.
class TemporaryStream {
public:
    TemporaryStream() { EXPECT_NE(file(), nullptr); }

    [[nodiscard]] std::FILE *file() const { return file_.get(); }

    /// All that was written up to now.
    [[nodiscard]] QByteArray bytes() const
    {
        std::fflush(file());
        std::rewind(file());
        QByteArray content;
        char block[4096];
        for (size_t count = 0; (count = std::fread(block, 1, sizeof block, file())) > 0;)
            content.append(block, static_cast<qsizetype>(count));
        std::fseek(file(), 0, SEEK_END);
        return content;
    }

    [[nodiscard]] QString text() const { return QString::fromUtf8(bytes()); }

private:
    struct Closer {
        void operator()(std::FILE *file) const { std::fclose(file); }
    };

    std::unique_ptr<std::FILE, Closer> file_{std::tmpfile()};
};

} // namespace vantrel::test
