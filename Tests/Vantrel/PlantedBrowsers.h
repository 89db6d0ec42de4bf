#pragma once

#include "Tests/Fakes/FakeBrowserData.h"
#include "Tests/Fakes/FakeWorkspace.h"
#include "Tests/VantrelKit/Samples.h"
#include "Tests/VantrelKit/TemporaryFolder.h"

#include <QList>

#include <utility>

namespace vantrel::test {

/// Browsers whose applications exist only for the test, and whose data are real files in a folder of its own.
class PlantedBrowsers {
public:
    /// Folder or file name, and the name that the browser shows for it.
    using Profiles = QList<std::pair<QString, QString>>;

    /// Each installs the browser and returns its data folder.
    QString plantChromium(const QString &bundleID, const QString &name, const Profiles &profiles);
    QString plantFirefox(const QString &bundleID, const QString &name, const Profiles &profiles);

    /// A browser whose data folder can't be listed, because it is a file.
    QString plantUnreadable(const QString &bundleID, const QString &name);

    FakeWorkspace workspace;
    FakeBrowserData data;
    TemporaryFolder folder;
};

/// The text of a "profiles.ini" with these profiles, their folders relative to it or absolute.
[[nodiscard]] QByteArray profilesIni(const PlantedBrowsers::Profiles &profiles);

} // namespace vantrel::test
