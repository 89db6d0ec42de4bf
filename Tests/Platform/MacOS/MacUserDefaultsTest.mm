#include "Platform/MacOS/MacUserDefaults.h"

#include "Tests/Contract/UserDefaultsContract.h"

#include <QUuid>

#import <Foundation/Foundation.h>

using namespace Qt::StringLiterals;

namespace vantrel {
namespace {

/// A domain of its own that ends with the test.
class Domain {
public:
    Domain() = default;
    ~Domain() { [native() removePersistentDomainForName:name_.toNSString()]; }
    Q_DISABLE_COPY_MOVE(Domain)

    [[nodiscard]] const QString &name() const { return name_; }
    [[nodiscard]] NSUserDefaults *native() const
    {
        return [[NSUserDefaults alloc] initWithSuiteName:name_.toNSString()];
    }

private:
    QString name_ = u"app.kestrune.Vantrel.test."_s + QUuid::createUuid().toString(QUuid::WithoutBraces);
};

class MacUserDefaultsSystem {
public:
    UserDefaults &defaults() { return defaults_; }
    UserDefaults &ofAnotherProgram() { return others_; }

private:
    Domain domain_;
    MacUserDefaults defaults_{domain_.name()};
    MacUserDefaults others_{domain_.name()};
};

TEST(MacUserDefaults, ValuesAreOfTheTypesThatOtherProgramsKnow)
{
    const Domain domain;
    MacUserDefaults defaults(domain.name());
    defaults.setValue(u"text"_s, u"true"_s);
    defaults.setValue(u"truth"_s, true);
    EXPECT_TRUE([[domain.native() objectForKey:@"text"] isKindOfClass:[NSString class]]);
    EXPECT_TRUE([[domain.native() objectForKey:@"truth"] isKindOfClass:[NSNumber class]]);
}

TEST(MacUserDefaults, NumbersOfOthersAreReadAsTextAndAnythingElseAsNothing)
{
    const Domain domain;
    [domain.native() setObject:@7 forKey:@"number"];
    [domain.native() setObject:@[ @"a" ] forKey:@"list"];
    const MacUserDefaults defaults(domain.name());
    EXPECT_EQ(defaults.value(u"number"_s), u"7"_s);
    EXPECT_FALSE(defaults.value(u"list"_s).isValid());
}

} // namespace

namespace test {

INSTANTIATE_TYPED_TEST_SUITE_P(MacOS, UserDefaultsContract, MacUserDefaultsSystem);

} // namespace test
} // namespace vantrel
