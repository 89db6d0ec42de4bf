#include "Vantrel/Interface/AlertBox.h"

#include "Tests/VantrelKit/Printing.h"

#include <QApplication>
#include <QMessageBox>
#include <QTest>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace vantrel {
namespace {

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
