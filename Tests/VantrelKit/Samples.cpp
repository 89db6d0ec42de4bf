#include "Tests/VantrelKit/Samples.h"

#include <array>
#include <utility>

using namespace Qt::StringLiterals;

namespace vantrel::test {
namespace {

struct Letter {
    char16_t letter;
    QString bundleID;
    BrowserFamily family;
};

const std::array<Letter, 6> &letters()
{
    static const std::array<Letter, 6> table{{
        {u'c', chrome, BrowserFamily::chromium},
        {u'b', brave, BrowserFamily::chromium},
        {u'e', edge, BrowserFamily::chromium},
        {u'f', firefox, BrowserFamily::firefox},
        {u'z', zen, BrowserFamily::firefox},
        {u's', safari, BrowserFamily::safari},
    }};
    return table;
}

ProfileTarget targetOf(BrowserFamily family, const QString &payload)
{
    const bool isPrivate = payload == "private"_L1;
    switch (family) {
    case BrowserFamily::safari:
        return isPrivate ? ProfileTarget::safariPrivate() : ProfileTarget::safariProfile(payload, 1);
    case BrowserFamily::chromium:
        return isPrivate ? ProfileTarget::chromiumPrivate() : ProfileTarget::chromium(payload);
    case BrowserFamily::firefox: return isPrivate ? ProfileTarget::firefoxPrivate() : ProfileTarget::firefox(payload);
    }
    Q_UNREACHABLE();
}

Profile profile(const QString &word)
{
    for (const Letter &letter : letters()) {
        if (word.front() != letter.letter)
            continue;
        const QString payload = word.sliced(2).section(u'=', 0, 0);
        const ProfileTarget target = targetOf(letter.family, payload);
        const QString name = word.contains(u'=') ? word.section(u'=', 1) : target.isPrivate() ? QString() : payload;
        return {letter.bundleID, name, target};
    }
    qFatal("No browser has the letter of %s.", qPrintable(word));
}

QString word(const Profile &profile)
{
    QString letter = profile.browserBundleID;
    for (const Letter &candidate : letters()) {
        if (profile.browserBundleID == candidate.bundleID)
            letter = QString(QChar(candidate.letter));
    }
    const QString payload = profile.target.key().section(u':', -1);
    const bool namedByPayload = profile.target.isPrivate() ? profile.name.isEmpty() : profile.name == payload;
    return letter + u':' + payload + (namedByPayload ? QString() : QString(u'=' + profile.name));
}

} // namespace

QList<Profile> profiles(const QString &notation)
{
    QList<Profile> result;
    for (const QString &word : notation.split(u' ', Qt::SkipEmptyParts))
        result.append(profile(word));
    return result;
}

QString notation(const QList<Profile> &profiles)
{
    QStringList words;
    for (const Profile &profile : profiles)
        words.append(word(profile));
    return words.join(u' ');
}

QStringList ids(const QList<Profile> &profiles)
{
    QStringList result;
    for (const Profile &profile : profiles)
        result.append(profile.id());
    return result;
}

const QStringList &oddTexts()
{
    static const QStringList texts{
        u" "_s,
        u"  two  blanks  "_s,
        u"\ttabs\t"_s,
        u"line\nbreak"_s,
        u"carriage\r\nreturn\r"_s,
        u"nul\0inside"_s,
        u"bell\a escape\x1b[31m delete\x7f"_s,
        u"'single' \"double\" `back`"_s,
        u"back\\slash \\n \\\\"_s,
        u"$HOME ${HOME} $(id) ; | & > < * ? [a] {b} ~ !"_s,
        u"100%"_s,
        u"%U %f %% %1 %2 %L1"_s,
        u"%20 %2525 %zz %00 %26 %C3%A9 %"_s,
        u"a&b=c"_s,
        u"&profileName=Other&url=https://evil.example/"_s,
        u"1+1=2"_s,
        u"+"_s,
        u"#1 fragment"_s,
        u"?question=mark"_s,
        u"/slash/../dots/."_s,
        u"a:b::c"_s,
        u"@ , ; ( ) ^ |"_s,
        u"--profile-directory=Other"_s,
        u"caf\u00e9 cafe\u0301"_s,
        u"\u05e9\u05dc\u05d5\u05dd \u202eright to left\u202c"_s,
        u"\u0645\u0644\u0641 \u0661\u0662\u0663"_s,
        u"\u65e5\u672c\u8a9e"_s,
        u"\U0001F600 \U0001F468\u200d\U0001F469\u200d\U0001F467"_s,
        u"\u201cquoted\u201d \u2013 \u2026"_s,
        u"\u00a0\u2028\u2029\u0085\u00ad\u200b"_s,
        u"inner\ufeffmark"_s,
        u"\ufffd\uffff\U0010FFFF"_s,
        u"<b>bold</b> &amp;"_s,
        QString(10000, u'x'),
    };
    return texts;
}

const QStringList &loneSurrogates()
{
    static const QStringList texts{
        QString(QChar(0xD83D)),
        QString(QChar(0xDE00)),
        u"a"_s + QChar(0xD800),
        QChar(0xDFFF) + u"z"_s,
        QString(QChar(0xDE00)) + QChar(0xD83D),
    };
    return texts;
}

} // namespace vantrel::test
