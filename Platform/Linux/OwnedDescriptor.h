#pragma once

#include <unistd.h>

#include <utility>

namespace vantrel {

/// A file descriptor that is closed when it goes.
class OwnedDescriptor {
public:
    OwnedDescriptor() = default;
    /// -1 for none, as the system's calls answer.
    explicit OwnedDescriptor(int number) : number_(number) {}
    OwnedDescriptor(OwnedDescriptor &&other) noexcept : number_(std::exchange(other.number_, -1)) {}
    OwnedDescriptor &operator=(OwnedDescriptor &&other) noexcept
    {
        if (this != &other) {
            close();
            number_ = std::exchange(other.number_, -1);
        }
        return *this;
    }
    OwnedDescriptor(const OwnedDescriptor &) = delete;
    OwnedDescriptor &operator=(const OwnedDescriptor &) = delete;
    ~OwnedDescriptor() { close(); }

    [[nodiscard]] int number() const { return number_; }
    [[nodiscard]] bool isOpen() const { return number_ >= 0; }

    void close()
    {
        if (isOpen())
            ::close(std::exchange(number_, -1));
    }

private:
    int number_ = -1;
};

} // namespace vantrel
