#include "Vantrel/Safari/Languages.h"

#include "Tests/Vantrel/EventLoop.h"
#include "Tests/VantrelKit/TemporaryFolder.h"

#include <QDir>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace vantrel::Safari {
namespace {

class LanguagesTest : public testing::Test {
protected:
    void add(const QString &code) const
    {
        folder_.write(u"app/"_s + code + u".lproj/MainMenu.strings"_s,
                      "81.title = f; 163.title = e; 82.title = n; CV2-YC-yYw.title = p;");
        folder_.write(u"framework/"_s + code + u".lproj/Localizable.strings"_s, "\"New %@ Window\" = \"w %@\";");
    }

    QStringList codes()
    {
        QStringList codes;
        for (const SafariLanguage &language : QCoro::waitFor(languages_.all()))
            codes.append(language.code);
        return codes;
    }

    test::EventProgram program_;
    test::TemporaryFolder folder_;
    Languages languages_{QUrl::fromLocalFile(folder_.path(u"app"_s)),
                         QUrl::fromLocalFile(folder_.path(u"framework"_s))};
};

TEST_F(LanguagesTest, FilesAreReadWhenTheyAreFirstNeededAndNotAgain)
{
    add(u"de"_s);
    EXPECT_EQ(codes(), QStringList({u"en"_s, u"de"_s}));
    add(u"ja"_s);
    ASSERT_TRUE(QDir(folder_.path(u"app/de.lproj"_s)).removeRecursively());
    EXPECT_EQ(codes(), QStringList({u"en"_s, u"de"_s}));
}

TEST_F(LanguagesTest, SeveralMayWaitForThem)
{
    add(u"de"_s);
    auto first = languages_.all();
    auto second = languages_.all();
    const auto languages = QCoro::waitFor(std::move(first));
    EXPECT_EQ(languages.size(), 2);
    EXPECT_EQ(QCoro::waitFor(std::move(second)), languages);
}

} // namespace
} // namespace vantrel::Safari
