#include "Tests/Vantrel/CommandLine/CommandLineCase.h"
#include "Tests/VantrelKit/UnprivilegedProcess.h"
#include "VantrelKit/KnownBrowsers.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

using namespace Qt::StringLiterals;

namespace vantrel {
namespace {

class DoctorCommandTest : public test::CommandLineCase {
protected:
    /// The lines of a browser's element in the JSON, as text.
    [[nodiscard]] QString element(const QString &bundleID)
    {
        const QString start = uR"({"browserBundleIdentifier":"%1")"_s.arg(bundleID);
        for (const QString &line : run({u"doctor"_s, u"--json"_s}).results.split(u'\n')) {
            if (line.startsWith(start))
                return line.endsWith(u',') ? line.chopped(1) : line;
        }
        return u"none"_s;
    }

    static QString installed(const QString &bundleID, const QString &name, const QString &folder, int profiles,
                             const QString &error = u"null"_s)
    {
        return uR"({"browserBundleIdentifier":"%1","browser":"%2","installed":true,"application":"/applications/%1",)"
               R"("dataFolder":%3,"profiles":%4,"error":%5})"_s.arg(bundleID, name, folder)
                   .arg(profiles)
                   .arg(error);
    }
};

const QString chromeFound = u"Google Chrome  com.google.Chrome\n"
                            "  application  /applications/com.google.Chrome\n"
                            "  data folder  %1\n"
                            "  profiles     2\n"
                            "\n"_s;

TEST_F(DoctorCommandTest, EveryKnownBrowserHasAnElementInTheJson)
{
    const Answer answer = run({u"doctor"_s, u"--json"_s});
    EXPECT_EQ(answer.status, ExitStatus::done);
    EXPECT_EQ(answer.messages, QString());
    QStringList bundleIDs;
    for (const QJsonValue &found : QJsonDocument::fromJson(answer.results.toUtf8()).array())
        bundleIDs.append(found.toObject().value(u"browserBundleIdentifier"_s).toString());
    EXPECT_EQ(bundleIDs, KnownBrowsers::all());
}

TEST_F(DoctorCommandTest, ABrowserThatIsNotInstalledIsCalledByItsIdentifier)
{
    EXPECT_EQ(element(test::chrome),
              uR"({"browserBundleIdentifier":"com.google.Chrome","browser":"com.google.Chrome","installed":false,)"
              R"("application":null,"dataFolder":null,"profiles":0,"error":null})"_s);
}

TEST_F(DoctorCommandTest, AnInstalledBrowserIsToldInFull)
{
    const QString path =
        planted.plantChromium(test::chrome, u"Google Chrome"_s, {{u"Default"_s, u"A"_s}, {u"Profile 1"_s, u"B"_s}});
    EXPECT_EQ(element(test::chrome), installed(test::chrome, u"Google Chrome"_s, u"\"%1\""_s.arg(path), 2));
    const Answer report = run({u"doctor"_s});
    EXPECT_EQ(report.status, ExitStatus::done);
    EXPECT_TRUE(report.results.startsWith(chromeFound.arg(path) + u"Not installed, and what was looked for:\n"_s))
        << report.results.toStdString();
}

TEST_F(DoctorCommandTest, TheReportTellsWhatWasLookedFor)
{
    const QStringList lines = run({u"doctor"_s}).results.split(u'\n');
    EXPECT_EQ(lines.first(), u"Not installed, and what was looked for:"_s);
    EXPECT_EQ(lines.size(), 2 + KnownBrowsers::all().size());
    EXPECT_EQ(lines.at(1), u"  com.apple.Safari  does not exist for this system"_s);
    EXPECT_TRUE(lines.contains(u"  com.google.Chrome  com.google.Chrome.application"_s));
}

TEST_F(DoctorCommandTest, SafariIsToldWhereThereIsOne)
{
    planted.workspace.install(test::safari, u"Safari"_s);
    EXPECT_EQ(element(test::safari), installed(test::safari, u"Safari"_s, u"null"_s, 0));
    EXPECT_TRUE(run({u"doctor"_s})
                    .results.startsWith(u"Safari  com.apple.Safari\n"
                                        "  application  /applications/com.apple.Safari\n"
                                        "  profiles     0\n"
                                        "\n"_s));
}

TEST_F(DoctorCommandTest, EachDataFolderIsTold)
{
    const QString old = planted.plantFirefox(test::firefox, u"Firefox"_s, {{u"/p"_s, u"Fox"_s}});
    const QString other = planted.folder.path(u"other"_s);
    planted.data.setFolders(test::firefox, {{.path = old}, {.path = other}});
    EXPECT_EQ(element(test::firefox), installed(test::firefox, u"Firefox"_s, u"\"%1\""_s.arg(old), 1));
    EXPECT_TRUE(run({u"doctor"_s})
                    .results.startsWith(u"Firefox  org.mozilla.firefox\n"
                                        "  application  /applications/org.mozilla.firefox\n"
                                        "  data folder  %1\n"
                                        "  data folder  %2\n"
                                        "  profiles     1\n"_s.arg(old, other)));
}

TEST_F(DoctorCommandTest, WhatFailedIsToldAndIsAFailure)
{
    const QString path = planted.plantUnreadable(test::brave, u"Brave"_s);
    const QString problem = u"Brave's profiles can't be read: “%1”: Not a directory."_s.arg(path);
    EXPECT_EQ(element(test::brave),
              installed(test::brave, u"Brave"_s, u"\"%1\""_s.arg(path), 0,
                        uR"({"kind":"readFailed","path":"%1","reason":"Not a directory"})"_s.arg(path)));
    const Answer report = run({u"doctor"_s});
    EXPECT_EQ(report.status, ExitStatus::failed);
    EXPECT_EQ(report.messages, u"vantrel: %1\n"_s.arg(problem));
    EXPECT_TRUE(report.results.contains(u"  data folder  %1\n  problem      %2\n\n"_s.arg(path, problem)))
        << report.results.toStdString();
    const Answer json = run({u"doctor"_s, u"--json"_s});
    EXPECT_EQ(json.status, ExitStatus::failed);
    EXPECT_EQ(json.messages, report.messages);
}

TEST_F(DoctorCommandTest, AFolderThatMayNotBeReadIsToldAsSuch)
{
    const QString path = planted.plantChromium(test::brave, u"Brave"_s, {});
    const test::ClosedPath closed(path);
    const auto answer = [this]() -> QString {
        return element(test::brave) + u'\n' + run({u"doctor"_s, u"--json"_s}).messages;
    };
    const QString error = uR"({"kind":"accessDenied","path":"%1","reason":""})"_s.arg(path);
    const QString message = u"vantrel: Brave's profiles can't be read: access to “%1” is denied. "
                            "Check the folder's permissions.\n"_s;
    EXPECT_EQ(test::answerOfUnprivilegedProcess(answer),
              installed(test::brave, u"Brave"_s, u"\"%1\""_s.arg(path), 0, error) + u'\n' + message.arg(path));
}

TEST_F(DoctorCommandTest, AControlCharacterIsShownAndNotObeyed)
{
    planted.workspace.install(test::chrome, u"Chr\x1b[31mome"_s);
    planted.data.setFolder(test::chrome, planted.folder.path(u"new\nline"_s));
    const QStringList lines = run({u"doctor"_s}).results.split(u'\n');
    EXPECT_EQ(lines.at(0), u"Chr\\x1b[31mome  com.google.Chrome"_s);
    EXPECT_EQ(lines.at(2), u"  data folder  "_s + planted.folder.path(u"new\\nline"_s));
}

TEST_F(DoctorCommandTest, TheSavedStateHasNoPartInIt)
{
    writeSavedState("damaged");
    const Answer answer = run({u"doctor"_s});
    EXPECT_EQ(answer.status, ExitStatus::done);
    EXPECT_EQ(answer.messages, QString());
}

} // namespace
} // namespace vantrel
