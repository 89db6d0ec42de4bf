#pragma once

#include <QFrame>
#include <QVBoxLayout>

namespace vantrel {

/// A titled group of settings in a frame.
class SettingsGroup final : public QWidget {
public:
    explicit SettingsGroup(const QString &title, QWidget *parent = nullptr);

    /// What is in the frame, one below the other.
    [[nodiscard]] QVBoxLayout *content() const { return content_; }

    /// A wrapped text for it, in which what stands between backquotes is code.
    [[nodiscard]] static QWidget *explanation(const QString &text);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QWidget *frame_;
    QVBoxLayout *content_;
};

} // namespace vantrel
