#include "Vantrel/Safari/Failure.h"

#include "Tests/Vantrel/Safari/SafariPrinting.h"

#include <gtest/gtest.h>

#include <vector>

using namespace Qt::StringLiterals;

namespace vantrel::Safari {
namespace {

TEST(SafariFailure, EachHasItsWords)
{
    EXPECT_EQ(
        Failure::accessibility().message,
        u"Vantrel needs Accessibility permission to open Safari profiles. Turn it on in System Settings ▸ Privacy & "
        "Security ▸ Accessibility."_s);
    EXPECT_EQ(Failure::automation().message,
              u"Vantrel isn't allowed to control Safari or System Events. Allow it in System Settings ▸ Privacy & "
              "Security ▸ Automation."_s);
    EXPECT_EQ(Failure::windowNotOpened().message,
              u"Safari didn't open a window for this profile. Check that the profile still exists in Safari, then find "
              "Safari's profiles again in Vantrel's settings."_s);
    EXPECT_EQ(Failure::notStarted().message, u"Safari didn't start. Open it once yourself, then try again."_s);
    EXPECT_EQ(Failure::menuUnreadable().message, u"Vantrel could not read Safari's File menu."_s);
    EXPECT_EQ(Failure::timeOut().message,
              u"Safari didn't answer in time. If it's showing a dialog, close it and try again."_s);
}

TEST(SafariFailure, AProfileIsNamedAsItIs)
{
    for (const QString &name : test::oddTexts()) {
        EXPECT_EQ(Failure::noProfile(name).message, u"Safari has no profile named “"_s + name +
                                                        u"”. Find Safari's profiles again in Vantrel's settings."_s);
    }
}

TEST(SafariFailure, OnlyTheTimeOutIsOne)
{
    EXPECT_TRUE(Failure::timeOut().isTimeout);
    for (const Failure &failure : {Failure::accessibility(), Failure::automation(), Failure::windowNotOpened(),
                                   Failure::notStarted(), Failure::menuUnreadable(), Failure::noProfile(u"Work"_s)})
        EXPECT_FALSE(failure.isTimeout) << failure.message.toStdString();
}

TEST(SafariFailure, WhatStaysTheSameIsFatal)
{
    for (const Failure &failure : {Failure::accessibility(), Failure::automation(), Failure::timeOut()})
        EXPECT_TRUE(failure.isFatal()) << failure.message.toStdString();
    for (const Failure &failure : {Failure::windowNotOpened(), Failure::notStarted(), Failure::menuUnreadable(),
                                   Failure::noProfile(u"Work"_s), Failure{u"other"_s}})
        EXPECT_FALSE(failure.isFatal()) << failure.message.toStdString();
}

TEST(SafariFailure, AScriptsErrorIsReadFromItsNumber)
{
    const std::vector<std::pair<QString, Failure>> rows{
        {u"35:40: execution error: Not authorized to send Apple events to System Events. (-1743)"_s,
         Failure::automation()},
        {u"-1743"_s, Failure::automation()},
        {u"execution error: osascript is not allowed assistive access. (-25211)"_s, Failure::accessibility()},
        {u"execution error: Invalid index. (-1719)"_s, Failure::accessibility()},
        {u"(-25211) (-1743)"_s, Failure::automation()},
        {u"(-1719) (-1743)"_s, Failure::automation()},
        {u""_s, Failure::menuUnreadable()},
        {u"execution error: -1728 1743 25211"_s, Failure{u"execution error: -1728 1743 25211"_s}},
    };
    for (const auto &[text, failure] : rows)
        EXPECT_EQ(Failure::ofScript(text), failure) << text.toStdString();
}

} // namespace
} // namespace vantrel::Safari
