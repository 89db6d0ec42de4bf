#pragma once

#include "Platform/FileSystem.h"

#include <filesystem>
#include <functional>
#include <system_error>

namespace vantrel {

/// The files of this machine.
class LocalFileSystem final : public FileSystem {
public:
    /// Puts each of two items in the other's place in one step; `std::errc::not_supported` where that can't be done.
    using Exchange = std::function<std::error_code(const std::filesystem::path &, const std::filesystem::path &)>;

    LocalFileSystem();
    explicit LocalFileSystem(Exchange exchange) : exchange_(std::move(exchange)) {}

    [[nodiscard]] Result makeFolder(const QString &path) override;
    [[nodiscard]] Result copyProgram(const QString &source, const QString &copy) override;
    [[nodiscard]] Result write(const QString &path, const QByteArray &content, Access access) override;
    [[nodiscard]] Result removeAttribute(const QString &path, const QString &name) override;
    [[nodiscard]] Result replaceItem(const QString &place, const QString &item) override;
    [[nodiscard]] Result remove(const QString &path) override;

private:
    [[nodiscard]] std::error_code swap(const std::filesystem::path &item, const std::filesystem::path &place) const;

    Exchange exchange_;
};

} // namespace vantrel
