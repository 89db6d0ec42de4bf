#pragma once

#include <QEvent>
#include <QEventLoop>

namespace vantrel {

/// Ends the loop once what it filters has been painted.
class FirstPaint final : public QObject {
public:
    bool eventFilter(QObject *object, QEvent *event) override
    {
        if (event->type() == QEvent::Paint)
            QMetaObject::invokeMethod(&loop_, &QEventLoop::quit, Qt::QueuedConnection);
        return QObject::eventFilter(object, event);
    }

    void wait() { loop_.exec(); }

private:
    QEventLoop loop_;
};

} // namespace vantrel
