#pragma once

#include "Platform/UserDefaults.h"
#include "Tests/VantrelKit/Samples.h"

#include <gtest/gtest.h>

#include <concepts>

namespace vantrel::test {

/// User defaults that are empty at first, and a way in which another program reads and writes the same ones.
template <typename System>
concept UserDefaultsSystem = requires(System system) {
    { system.defaults() } -> std::same_as<UserDefaults &>;
    { system.ofAnotherProgram() } -> std::same_as<UserDefaults &>;
};

template <UserDefaultsSystem System>
class UserDefaultsContract : public testing::Test {
protected:
    UserDefaults &defaults() { return system_.defaults(); }
    UserDefaults &others() { return system_.ofAnotherProgram(); }

    /// Keys as profiles have them, and odd ones; none is empty.
    [[nodiscard]] static QStringList keys()
    {
        QStringList keys{
            QStringLiteral("KeyboardShortcuts_profile.com.google.Chrome/chromium:Default"),
            QStringLiteral("KeyboardShortcuts_profile.com.google.Chrome/chromium:Profile 1"),
            QStringLiteral("KeyboardShortcuts_profile.org.mozilla.firefox/firefox:Profiles/abc.default"),
            QStringLiteral("a"),
            QStringLiteral("A"),
            QStringLiteral("a/b"),
            QStringLiteral("a//b"),
            QStringLiteral("a\\b"),
            QStringLiteral("/a/b/"),
            QStringLiteral("a%2Fb"),
            QStringLiteral("a%252Fb"),
            QStringLiteral("General/a"),
            QStringLiteral("General"),
            QStringLiteral("%General/a"),
            QStringLiteral("[a]=b;c#d"),
            QStringLiteral("Büro 東京 👩‍💻"),
        };
        for (const QString &text : oddTexts())
            keys.append(QStringLiteral("odd ") + text);
        return keys;
    }

    void expectValue(const QString &key, const QVariant &expected)
    {
        for (UserDefaults *defaults : {&this->defaults(), &this->others()}) {
            const QVariant value = defaults->value(key);
            EXPECT_EQ(value.typeId(), expected.typeId()) << key.toStdString();
            EXPECT_EQ(value, expected) << key.toStdString();
        }
    }

    System system_;
};

TYPED_TEST_SUITE_P(UserDefaultsContract);

TYPED_TEST_P(UserDefaultsContract, WhatWasNeverStoredIsInvalid)
{
    this->defaults().remove(QStringLiteral("a"));
    for (const QString &key : this->keys())
        EXPECT_FALSE(this->defaults().value(key).isValid()) << key.toStdString();
}

TYPED_TEST_P(UserDefaultsContract, StringsAreReadAsTheyWereStored)
{
    QStringList values = oddTexts();
    values.append({QString(QLatin1String("")), QStringLiteral("true"), QStringLiteral("false"), QStringLiteral("1"),
                   QStringLiteral("@Invalid()"), QStringLiteral("@ByteArray(x)"), QStringLiteral("a,b"),
                   QStringLiteral("{\"carbonKeyCode\":0,\"carbonModifiers\":4352}")});
    for (const QString &value : values) {
        this->defaults().setValue(QStringLiteral("key"), value);
        this->expectValue(QStringLiteral("key"), value);
    }
}

TYPED_TEST_P(UserDefaultsContract, TruthValuesAreNoStrings)
{
    for (const bool value : {false, true}) {
        this->defaults().setValue(QStringLiteral("key"), value);
        this->expectValue(QStringLiteral("key"), value);
    }
}

TYPED_TEST_P(UserDefaultsContract, EachKeyIsAPlaceOfItsOwn)
{
    for (const QString &key : this->keys())
        this->defaults().setValue(key, QString(QStringLiteral("value of ") + key));
    for (const QString &key : this->keys())
        this->expectValue(key, QString(QStringLiteral("value of ") + key));
}

TYPED_TEST_P(UserDefaultsContract, RemovingAKeyLeavesTheOthers)
{
    QStringList left = this->keys();
    for (const QString &key : left)
        this->defaults().setValue(key, key);
    while (!left.isEmpty()) {
        const QString gone = left.takeFirst();
        this->defaults().remove(gone);
        EXPECT_FALSE(this->defaults().value(gone).isValid()) << gone.toStdString();
        EXPECT_FALSE(this->others().value(gone).isValid()) << gone.toStdString();
        for (const QString &key : left)
            EXPECT_EQ(this->defaults().value(key), key) << "after removing " << gone.toStdString();
    }
}

TYPED_TEST_P(UserDefaultsContract, WhatAnotherProgramDoesIsSeenAtTheNextRead)
{
    const QString key = this->keys().first();
    EXPECT_FALSE(this->defaults().value(key).isValid());
    this->others().setValue(key, QStringLiteral("theirs"));
    this->expectValue(key, QStringLiteral("theirs"));
    this->others().setValue(key, false);
    this->expectValue(key, false);
    this->defaults().setValue(key, QStringLiteral("ours"));
    this->expectValue(key, QStringLiteral("ours"));
    this->others().remove(key);
    EXPECT_FALSE(this->defaults().value(key).isValid());
}

TYPED_TEST_P(UserDefaultsContract, WhatBothStoreStaysSideBySide)
{
    this->defaults().setValue(QStringLiteral("ours"), QStringLiteral("1"));
    this->others().setValue(QStringLiteral("theirs"), QStringLiteral("2"));
    this->defaults().setValue(QStringLiteral("ours, too"), QStringLiteral("3"));
    this->expectValue(QStringLiteral("ours"), QStringLiteral("1"));
    this->expectValue(QStringLiteral("theirs"), QStringLiteral("2"));
    this->expectValue(QStringLiteral("ours, too"), QStringLiteral("3"));
}

REGISTER_TYPED_TEST_SUITE_P(UserDefaultsContract, WhatWasNeverStoredIsInvalid, StringsAreReadAsTheyWereStored,
                            TruthValuesAreNoStrings, EachKeyIsAPlaceOfItsOwn, RemovingAKeyLeavesTheOthers,
                            WhatAnotherProgramDoesIsSeenAtTheNextRead, WhatBothStoreStaysSideBySide);

} // namespace vantrel::test
