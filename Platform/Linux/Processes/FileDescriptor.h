#pragma once

#include <unistd.h>

#include <utility>

namespace vantrel {

/// Owns an open file of this process, or none.
class FileDescriptor final {
public:
    FileDescriptor() = default;
    /// Takes what a system call returned; a negative number is none.
    explicit FileDescriptor(int descriptor) : descriptor_(descriptor) {}
    FileDescriptor(FileDescriptor &&other) noexcept : descriptor_(std::exchange(other.descriptor_, -1)) {}
    FileDescriptor &operator=(FileDescriptor &&other) noexcept
    {
        std::swap(descriptor_, other.descriptor_);
        return *this;
    }
    FileDescriptor(const FileDescriptor &) = delete;
    FileDescriptor &operator=(const FileDescriptor &) = delete;
    ~FileDescriptor()
    {
        if (isOpen())
            close(descriptor_);
    }

    [[nodiscard]] bool isOpen() const { return descriptor_ >= 0; }
    /// Negative for none.
    [[nodiscard]] int get() const { return descriptor_; }

private:
    int descriptor_ = -1;
};

} // namespace vantrel
