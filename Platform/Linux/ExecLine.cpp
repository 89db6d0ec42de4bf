#include "Platform/Linux/ExecLine.h"

#include "VantrelKit/WebLinks.h"

#include <glib.h>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace vantrel {
namespace {

bool isLink(const QString &argument)
{
    return !openableLinks({QUrl(argument)}).isEmpty();
}

bool isFilesFieldCode(QStringView word)
{
    return word == "%u"_L1 || word == "%U"_L1 || word == "%f"_L1 || word == "%F"_L1;
}

/// Flatpak's own words around the field code, which let it pass files that the sandbox can't see.
bool isForwardingMark(QStringView word)
{
    return word == "@@u"_L1 || word == "@@"_L1;
}

/// A word with the field codes inside it expanded. Those for files are ours to give, and others are deprecated: nothing
/// takes their place.
QString expandedWord(const QString &word, const DesktopEntry &entry)
{
    QString expanded;
    for (qsizetype position = 0; position < word.size(); ++position) {
        if (word[position] != u'%' || position + 1 == word.size()) {
            expanded.append(word[position]);
            continue;
        }
        ++position;
        if (word[position] == u'%')
            expanded.append(u'%');
        else if (word[position] == u'c')
            expanded.append(entry.name);
        else if (word[position] == u'k')
            expanded.append(entry.path);
    }
    return expanded;
}

/// A word of the Exec line that isn't the place of files.
QStringList expandedWords(const QString &word, const DesktopEntry &entry)
{
    if (word == "%i"_L1)
        return entry.icon.isEmpty() ? QStringList() : QStringList{u"--icon"_s, entry.icon};
    const QString expanded = expandedWord(word, entry);
    // A word that was nothing but codes for which there is nothing is no argument at all.
    const bool isEmptied = expanded.isEmpty() && !word.isEmpty();
    return isEmptied ? QStringList() : QStringList(expanded);
}

/// Our arguments as the application takes them.
QStringList adaptedArguments(const DesktopEntry &entry, const QStringList &arguments, const QString &home)
{
    QStringList adapted = arguments;
    // What discovery calls "." is the data folder itself, which the browser opens when no profile is named.
    adapted.removeAll(u"--profile-directory=."_s);
    if (entry.flatpakID.isEmpty())
        return adapted;
    for (qsizetype index = 1; index < adapted.size(); ++index) {
        if (adapted[index - 1] == "--profile"_L1)
            adapted[index] = pathInsideFlatpak(adapted[index], entry.flatpakID, home);
    }
    return adapted;
}

QStringList withForwardingMarks(const QStringList &arguments)
{
    const auto firstLink = std::ranges::find_if(arguments, isLink);
    if (firstLink == arguments.end())
        return arguments;
    const qsizetype switches = firstLink - arguments.begin();
    return arguments.first(switches) + QStringList(u"@@u"_s) + arguments.sliced(switches) + QStringList(u"@@"_s);
}

} // namespace

std::expected<QStringList, PlatformError> execWords(const QString &exec)
{
    gint count = 0;
    gchar **words = nullptr;
    GError *error = nullptr;
    if (g_shell_parse_argv(exec.toUtf8().constData(), &count, &words, &error) == FALSE) {
        const PlatformError failure{QString::fromUtf8(error->message)};
        g_error_free(error);
        return std::unexpected(failure);
    }
    QStringList list;
    for (gint index = 0; index < count; ++index)
        list.append(QString::fromUtf8(words[index]));
    g_strfreev(words);
    return list;
}

QString pathInsideFlatpak(const QString &path, const QString &flatpakID, const QString &home)
{
    const QString sandboxHome = home + "/.var/app/"_L1 + flatpakID + u'/';
    if (!path.startsWith(sandboxHome + u'.'))
        return path;
    return home + u'/' + QStringView(path).sliced(sandboxHome.size());
}

std::expected<QStringList, PlatformError> expandedCommandLine(const DesktopEntry &entry, const QStringList &arguments,
                                                              const QString &home)
{
    const auto words = execWords(entry.exec);
    if (!words)
        return std::unexpected(words.error());
    const bool forwardsFiles = words->contains(u"@@u"_s);
    const QStringList adapted = adaptedArguments(entry, arguments, home);
    const QStringList ours = forwardsFiles ? withForwardingMarks(adapted) : adapted;

    QStringList line;
    bool placed = false;
    for (const QString &word : *words) {
        if (isFilesFieldCode(word)) {
            if (!placed)
                line.append(ours);
            placed = true;
        } else if (!(forwardsFiles && isForwardingMark(word))) {
            line.append(expandedWords(word, entry));
        }
    }
    if (!placed)
        line.append(ours);
    return line;
}

} // namespace vantrel
