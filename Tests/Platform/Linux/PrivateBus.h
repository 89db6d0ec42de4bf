#pragma once

#include <QProcess>
#include <QString>

namespace vantrel::test {

/// A session bus of a test's own, which ends with it.
class PrivateBus {
public:
    /// `variables` are the bus's and those of the services that it starts.
    explicit PrivateBus(const QProcessEnvironment &variables = QProcessEnvironment::systemEnvironment());
    ~PrivateBus();
    Q_DISABLE_COPY_MOVE(PrivateBus)

    [[nodiscard]] const QString &address() const { return address_; }

    void stop();
    /// While it is paused it answers nobody.
    void pause() const;
    void resume() const;

private:
    QProcess daemon_;
    QString address_;
};

} // namespace vantrel::test
