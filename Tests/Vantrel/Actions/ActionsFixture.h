#pragma once

#include "Tests/Fakes/FakeAlert.h"
#include "Tests/Fakes/FakeLog.h"
#include "Tests/Fakes/FakeWorkspace.h"
#include "Tests/VantrelKit/Samples.h"
#include "Vantrel/Actions/ProfileQuery.h"
#include "Vantrel/ProfileOpener.h"

#include <QMap>

#include <gtest/gtest.h>

namespace vantrel::test {

/// Brave, Google Chrome and Firefox with a few profiles; Edge's saved profile has lost its browser.
class ActionsFixture : public testing::Test {
protected:
    ActionsFixture();

    /// The browsers' names by their identifiers.
    void install(const QMap<QString, QString> &browsers);
    /// A browser of the Chromium family has these profiles from now on, "FOLDER=NAME" each.
    void discover(const QString &bundleID, const QStringList &profiles);
    [[nodiscard]] Profile profile(const QString &id) const;
    /// The arguments of all starts, with those of a start joined by blanks.
    [[nodiscard]] QStringList started() const;

    FakeWorkspace workspace_;
    FakeAlert alert_;
    FakeLog log_;
    ProfileStore store_{QString(), log_, ProfileStore::Liveness::detached};
    ProfileOpener opener_{store_, {workspace_, alert_, log_}};
    ProfileTitles titles_{store_};
};

/// What is shown of entities.
[[nodiscard]] QStringList shown(const QList<ProfileEntity> &entities);

} // namespace vantrel::test
