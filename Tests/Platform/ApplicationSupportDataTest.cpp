#include "Platform/ApplicationSupportData.h"

#include "Tests/Contract/BrowserDataContract.h"
#include "Tests/Fakes/FakeWorkspace.h"
#include "Tests/VantrelKit/TemporaryFolder.h"
#include "VantrelKit/KnownBrowsers.h"

using namespace Qt::StringLiterals;

namespace vantrel {
namespace {

const QString opera = u"com.operasoftware.Opera"_s;

class ApplicationSupportDataTest : public testing::Test {
protected:
    ApplicationSupportDataTest()
    {
        for (const QString &bundleID : KnownBrowsers::all())
            workspace_.install(bundleID, bundleID);
    }

    /// Where an installed browser has its data, seen from the root.
    QStringList paths(const QString &bundleID)
    {
        QStringList paths;
        for (const BrowserDataFolder &folder : data_.dataFolders(bundleID))
            paths.append(folder.path.sliced(folder_.path().size() + 1));
        return paths;
    }

    test::TemporaryFolder folder_;
    test::FakeWorkspace workspace_;
    ApplicationSupportData data_{folder_.path(), workspace_};
};

TEST_F(ApplicationSupportDataTest, EachBrowserHasTheCataloguesFolderWhetherItIsThereOrNot)
{
    EXPECT_EQ(paths(test::chrome), QStringList(u"Google/Chrome"_s));
    EXPECT_EQ(paths(u"com.microsoft.edgemac.Canary"_s), QStringList(u"Microsoft Edge Canary"_s));
    EXPECT_EQ(paths(test::firefox), QStringList(u"Firefox"_s));
    EXPECT_EQ(paths(u"org.mozilla.nightly"_s), QStringList(u"Firefox"_s));
    EXPECT_EQ(paths(test::zen), QStringList(u"zen"_s));
    EXPECT_EQ(paths(opera), QStringList(opera));
}

TEST_F(ApplicationSupportDataTest, OnlyWhatIsInstalledAndKeepsDataHasAFolder)
{
    workspace_.uninstall(test::chrome);
    for (const QString &bundleID :
         {test::chrome, test::safari, test::unknownBrowser, test::firefox.toUpper(), QString()})
        EXPECT_EQ(paths(bundleID), QStringList()) << bundleID.toStdString();
}

TEST_F(ApplicationSupportDataTest, OnlyAnOperaWithoutProfilesKeepsItsFilesInTheFolderItself)
{
    using Layout = BrowserDataFolder::Layout;
    const auto layout = [this](const QString &bundleID) { return data_.dataFolders(bundleID).value(0).layout; };
    EXPECT_EQ(layout(opera), Layout::manyProfiles);
    folder_.write(opera + u"/Preferences"_s);
    folder_.write(u"Google/Chrome/Preferences"_s);
    folder_.write(u"Firefox/Preferences"_s);
    EXPECT_EQ(layout(opera), Layout::singleProfile);
    EXPECT_EQ(layout(test::chrome), Layout::manyProfiles);
    EXPECT_EQ(layout(test::firefox), Layout::manyProfiles);
    folder_.write(opera + u"/Default/Preferences"_s);
    EXPECT_EQ(layout(opera), Layout::manyProfiles);
}

} // namespace
} // namespace vantrel
