#include "Vantrel/Interface/AlertBox.h"

#include "Tests/Fakes/FakeActivationPolicy.h"
#include "Tests/Vantrel/Interface/OpenBox.h"
#include "Tests/VantrelKit/Printing.h"

#include <QTest>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace vantrel {
namespace {

using test::openBox;

void answer(QMessageBox *box)
{
    QTest::keyClick(box, Qt::Key_Return);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

TEST(AlertBox, ShowsTitleAndMessageAsTheyAreAndReturnsAtOnce)
{
    test::FakeActivationPolicy policy;
    AlertBox(policy).show(u"The Profile Didn't Open"_s, u"<b>Work</b> &amp; more\nsecond line"_s);
    QMessageBox *box = openBox();
    ASSERT_NE(box, nullptr);
    EXPECT_TRUE(box->isVisible());
    EXPECT_TRUE(box->isModal());
    EXPECT_EQ(box->text(), u"The Profile Didn't Open"_s);
    EXPECT_EQ(box->informativeText(), u"<b>Work</b> &amp; more\nsecond line"_s);
    EXPECT_EQ(box->textFormat(), Qt::PlainText);
    EXPECT_EQ(box->standardButtons(), QMessageBox::Ok);
    answer(box);
    EXPECT_EQ(openBox(), nullptr);
}

TEST(AlertBox, TheProgramComesToTheFrontBeforeItIsShown)
{
    test::FakeActivationPolicy policy;
    bool wasShown = false;
    policy.onActivate([&] { wasShown = openBox() && openBox()->isVisible(); });
    AlertBox(policy).show(u"Title"_s, u"Message"_s);
    ASSERT_NE(openBox(), nullptr);
    EXPECT_EQ(policy.activations(), 1);
    EXPECT_FALSE(wasShown);
    answer(openBox());
}

} // namespace
} // namespace vantrel
