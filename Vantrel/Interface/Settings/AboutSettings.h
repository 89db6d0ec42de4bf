#pragma once

#include <QWidget>

namespace vantrel {

/// The page of the settings that says what the program is.
class AboutSettings final : public QWidget {
    Q_OBJECT

public:
    /// The version as the application has it: "1.2", then the build's number.
    AboutSettings(const QString &version, const QString &build, QWidget *parent = nullptr);
};

} // namespace vantrel
