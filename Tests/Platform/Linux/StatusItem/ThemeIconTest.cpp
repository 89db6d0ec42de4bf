#include "Platform/Linux/StatusItem/ThemeIcon.h"

#include "Tests/VantrelKit/TemporaryFolder.h"

#include <QFile>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace vantrel {
namespace {

class ThemeIconTest : public testing::Test {
protected:
    [[nodiscard]] bool isFound(const QString &name = u"symbol"_s) const { return isThemeIcon(name, environment_); }

    test::TemporaryFolder folder_;

private:
    Environment environment_ = [this] {
        Environment environment;
        environment.dataHome = folder_.path(u"home"_s);
        environment.dataDirs = {folder_.path(u"missing"_s), folder_.path(u"system"_s)};
        return environment;
    }();
};

TEST_F(ThemeIconTest, IsFoundInEachDataFolderAndEachSizeAsAnApplicationsOrAStatus)
{
    for (const QString &file :
         {u"home/icons/hicolor/scalable/apps/symbol.svg"_s, u"system/icons/hicolor/symbolic/apps/symbol.svg"_s,
          u"system/icons/hicolor/22x22/status/symbol.png"_s, u"home/icons/hicolor/16x16@2x/apps/symbol.png"_s}) {
        EXPECT_FALSE(isFound()) << qPrintable(file);
        const QString path = folder_.write(file);
        EXPECT_TRUE(isFound()) << qPrintable(file);
        ASSERT_TRUE(QFile::remove(path));
    }
}

TEST_F(ThemeIconTest, IsNotFoundUnderAnotherNameInAnotherThemeOrAsAnotherKindOfFile)
{
    for (const QString &file :
         {u"home/icons/hicolor/scalable/apps/symbol-old.svg"_s, u"home/icons/hicolor/scalable/apps/symbol.txt"_s,
          u"home/icons/Other/scalable/apps/symbol.svg"_s, u"home/icons/hicolor/scalable/mimetypes/symbol.svg"_s,
          u"home/icons/hicolor/scalable/apps/.svg"_s})
        folder_.write(file);
    EXPECT_FALSE(isFound());
    EXPECT_FALSE(isFound(QString()));
}

} // namespace
} // namespace vantrel
