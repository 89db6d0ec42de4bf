#include "VantrelKit/Safari/SafariMenus.h"

#include "VantrelKit/Safari/CanonicalText.h"
#include "VantrelKit/Safari/StringsFile.h"

#include <QDir>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace vantrel {
namespace {

constexpr QLatin1StringView localizationSuffix(".lproj");

/// The languages that a folder has localizations for, but English, sorted.
QStringList languageCodes(const QDir &folder)
{
    QStringList codes;
    for (const QString &name : folder.entryList(QDir::AllEntries | QDir::Hidden | QDir::System, QDir::Unsorted)) {
        if (name.endsWith(localizationSuffix) && name != "Base.lproj"_L1 && name != "en.lproj"_L1)
            codes.append(name.chopped(localizationSuffix.size()));
    }
    // UTF-8 sorts as Unicode's numbers do, which UTF-16 does not.
    std::ranges::sort(codes, {}, [](const QString &code) { return code.toUtf8(); });
    return codes;
}

/// The texts of a strings file; none when there is no such file or some value is no text.
std::optional<QHash<QString, QString>> textsIn(const QString &path)
{
    auto file = StringsFile::read(path);
    if (!file || !file->otherKeys.isEmpty())
        return std::nullopt;
    return std::move(file->texts);
}

std::optional<SafariLanguage> readLanguage(const QString &code, const QDir &appFolder, const QDir &frameworkFolder)
{
    const QString localization = code + localizationSuffix;
    const auto menu = textsIn(appFolder.filePath(localization + "/MainMenu.strings"_L1));
    if (!menu)
        return std::nullopt;
    const auto windows = textsIn(frameworkFolder.filePath(localization + "/Localizable.strings"_L1));
    if (!windows)
        return std::nullopt;

    bool isComplete = true;
    const auto text = [&isComplete](const QHash<QString, QString> &texts, const QString &key) {
        const auto found = texts.constFind(key);
        isComplete = isComplete && found != texts.cend();
        return found == texts.cend() ? QString() : *found;
    };
    SafariLanguage language{
        .code = code,
        .file = text(*menu, u"81.title"_s),
        .edit = text(*menu, u"163.title"_s),
        .newWindow = text(*menu, u"82.title"_s),
        .newPrivateWindow = text(*menu, u"CV2-YC-yYw.title"_s),
        .newProfileWindowFormat = text(*windows, u"New %@ Window"_s),
    };
    return isComplete ? std::optional(std::move(language)) : std::nullopt;
}

} // namespace

const QUrl &SafariMenus::appResources()
{
    static const QUrl url = QUrl::fromLocalFile(
        u"/System/Volumes/Preboot/Cryptexes/App/System/Applications/Safari.app/Contents/Resources/"_s);
    return url;
}

const QUrl &SafariMenus::frameworkResources()
{
    static const QUrl url =
        QUrl::fromLocalFile(u"/System/Volumes/Preboot/Cryptexes/Incoming/OS/System/Library/PrivateFrameworks/"
                            "Safari.framework/Versions/A/Resources/"_s);
    return url;
}

QList<SafariLanguage> SafariMenus::loadLanguages(const QUrl &appResources, const QUrl &frameworkResources)
{
    QList<SafariLanguage> languages{SafariLanguage::english()};
    // Such an address has no path, and without a path the current folder would be read.
    if (!appResources.isLocalFile() || !frameworkResources.isLocalFile())
        return languages;
    const QDir appFolder(appResources.toLocalFile());
    const QDir frameworkFolder(frameworkResources.toLocalFile());
    for (const QString &code : languageCodes(appFolder)) {
        if (auto language = readLanguage(code, appFolder, frameworkFolder))
            languages.append(*std::move(language));
    }
    return languages;
}

SafariLanguage SafariMenus::language(const QStringList &menuBar, const QList<SafariLanguage> &languages)
{
    const auto found = std::ranges::find_if(
        languages, [&menuBar](const SafariLanguage &language) { return language.matches(menuBar); });
    return found == languages.cend() ? SafariLanguage::english() : *found;
}

QStringList SafariMenus::profileNames(const QStringList &titles, const SafariLanguage &language)
{
    QStringList names;
    for (const QString &title : titles) {
        if (auto name = language.profileName(title))
            names.append(*std::move(name));
    }
    return names;
}

std::optional<qsizetype> SafariMenus::position(const QString &profile, const QStringList &titles,
                                               const SafariLanguage &language)
{
    for (qsizetype index = 0; index < titles.size(); ++index) {
        const auto name = language.profileName(titles[index]);
        if (name && isSameText(*name, profile))
            return index + 1;
    }
    return std::nullopt;
}

QStringList SafariMenus::items(const QString &lines)
{
    QStringList items = lines.split(u'\n', Qt::KeepEmptyParts);
    while (!items.isEmpty() && items.constLast().isEmpty())
        items.removeLast();
    return items;
}

QString SafariMenus::listScript(const QString &expression)
{
    return "on listItems()\n"
           "    "_L1 +
           expression +
           "\n"
           "end listItems\n"
           "set out to \"\"\n"
           "repeat with anItem in listItems()\n"
           "    set out to out & (anItem as text) & linefeed\n"
           "end repeat\n"
           "return out"_L1;
}

} // namespace vantrel
