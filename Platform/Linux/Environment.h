#pragma once

#include <QProcessEnvironment>
#include <QString>
#include <QStringList>

#include <optional>

namespace vantrel {

/// The folders that the environment variables name, read once and passed on, so that a test can name others. All paths
/// are absolute: a relative one in a variable counts as not set, as the XDG Base Directory Specification says.
struct Environment {
    QString home;
    QString configHome;
    QString dataHome;
    /// Without `dataHome`, in the order of preference.
    QStringList dataDirs;
    /// $CHROME_CONFIG_HOME, which stands in for `configHome` in Chromium browsers; Helium calls it $HELIUM_CONFIG_HOME.
    std::optional<QString> chromeConfigHome;
    std::optional<QString> heliumConfigHome;
    /// $CHROME_USER_DATA_DIR, the data folder of any Chromium browser.
    std::optional<QString> chromeUserDataDir;
    /// $MOZ_LEGACY_HOME: Firefox keeps to ~/.mozilla.
    bool legacyFirefoxHome = false;

    [[nodiscard]] static Environment from(const QProcessEnvironment &variables);
};

} // namespace vantrel
