#include "Tests/VantrelKit/Samples.h"
#include "Vantrel/Interface/AlertBox.h"
#include "Vantrel/Interface/Settings/SettingsWindow.h"

#include <QApplication>
#include <QMessageBox>
#include <QTest>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace vantrel {
namespace {

class CountedPolicy final : public ActivationPolicy {
public:
    void becomeRegular() override { isRegular_ = true; }
    void becomeAccessory() override { isRegular_ = false; }
    void activate() override { ++activations_; }

    [[nodiscard]] bool isRegular() const { return isRegular_; }
    [[nodiscard]] int activations() const { return activations_; }

private:
    bool isRegular_ = false;
    int activations_ = 0;
};

TEST(SettingsWindow, CountsFromBeingShownToBeingClosed)
{
    CountedPolicy policy;
    SettingsWindows windows(policy);
    SettingsWindow window(windows);
    EXPECT_EQ(windows.count(), 0);
    window.show();
    EXPECT_TRUE(policy.isRegular());
    EXPECT_EQ(policy.activations(), 1);
    window.show();
    window.hide();
    window.show();
    EXPECT_EQ(windows.count(), 1);
    window.close();
    EXPECT_EQ(windows.count(), 0);
    EXPECT_FALSE(policy.isRegular());
    window.show();
    EXPECT_EQ(windows.count(), 1);
}

/// The alert that is open.
QMessageBox *openBox()
{
    for (QWidget *widget : QApplication::topLevelWidgets()) {
        if (auto *box = qobject_cast<QMessageBox *>(widget))
            return box;
    }
    return nullptr;
}

TEST(AlertBox, ShowsTitleAndMessageAsTheyAreAndReturnsAtOnce)
{
    AlertBox().show(u"The Profile Didn't Open"_s, u"<b>Work</b> &amp; more\nsecond line"_s);
    QMessageBox *box = openBox();
    ASSERT_NE(box, nullptr);
    EXPECT_TRUE(box->isVisible());
    EXPECT_TRUE(box->isModal());
    EXPECT_EQ(box->text(), u"The Profile Didn't Open"_s);
    EXPECT_EQ(box->informativeText(), u"<b>Work</b> &amp; more\nsecond line"_s);
    EXPECT_EQ(box->textFormat(), Qt::PlainText);
    EXPECT_EQ(box->standardButtons(), QMessageBox::Ok);
    QTest::keyClick(box, Qt::Key_Return);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_EQ(openBox(), nullptr);
}

} // namespace
} // namespace vantrel
