#include "Platform/BundleApplication.h"

#include "Tests/VantrelKit/Printing.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace vantrel {
namespace {

QString nameOf(const char *bundle)
{
    return bundleApplication(QUrl::fromEncoded(bundle)).name;
}

TEST(BundleApplication, IsNamedAsItsFileWithoutTheExtension)
{
    EXPECT_EQ(nameOf("file:///Applications/Google%20Chrome.app"), u"Google Chrome"_s);
    EXPECT_EQ(nameOf("file:///Applications/Chrome%202.app/"), u"Chrome 2"_s);
    EXPECT_EQ(nameOf("file:///Applications/Zen%201.2.app/"), u"Zen 1.2"_s);
    EXPECT_EQ(nameOf("file:///Applications/B%C3%BCro"), u"Büro"_s);
}

TEST(BundleApplication, HasAUrlWithoutASlashAtItsEnd)
{
    const QUrl url = QUrl::fromLocalFile(u"/Applications/Safari.app"_s);
    EXPECT_EQ(bundleApplication(url).url, url);
    EXPECT_EQ(bundleApplication(QUrl::fromLocalFile(u"/Applications/Safari.app/"_s)).url, url);
}

} // namespace
} // namespace vantrel
