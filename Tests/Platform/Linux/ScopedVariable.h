#pragma once

#include <QByteArray>

#include <optional>

namespace vantrel::test {

/// Sets an environment variable of this process, and puts it back when it goes. Not while other threads run.
class ScopedVariable {
public:
    ScopedVariable(const char *name, const QByteArray &value) : name_(name)
    {
        if (qEnvironmentVariableIsSet(name))
            former_ = qgetenv(name);
        qputenv(name, value);
    }

    ~ScopedVariable()
    {
        if (former_)
            qputenv(name_, *former_);
        else
            qunsetenv(name_);
    }
    Q_DISABLE_COPY_MOVE(ScopedVariable)

private:
    const char *name_;
    std::optional<QByteArray> former_;
};

} // namespace vantrel::test
