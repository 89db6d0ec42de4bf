#include "Vantrel/CommandLine/CommandArguments.h"

#include "VantrelKit/PrintableText.h"

#include <QCommandLineParser>
#include <QCoreApplication>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace vantrel {
namespace {

struct Texts {
    Q_DECLARE_TR_FUNCTIONS(CommandLine)
};

QString usage(const CommandSyntax &syntax)
{
    QStringList parts{u"vantrel"_s, syntax.command};
    for (const CommandSyntax::Word &option : syntax.switches)
        parts.append(u"[--"_s + option.name + u']');
    for (const CommandSyntax::Option &option : syntax.options)
        parts.append(u"[--%1 %2]"_s.arg(option.name, option.value));
    for (const CommandSyntax::Word &word : syntax.required)
        parts.append(word.name);
    if (!syntax.repeated.name.isEmpty())
        parts.append(u'[' + syntax.repeated.name + u"…]"_s);
    return parts.join(u' ');
}

QString help(const CommandSyntax &syntax)
{
    QList<CommandSyntax::Word> rows = syntax.required;
    if (!syntax.repeated.name.isEmpty())
        rows.append(syntax.repeated);
    for (const CommandSyntax::Word &option : syntax.switches)
        rows.append({u"--"_s + option.name, option.description});
    for (const CommandSyntax::Option &option : syntax.options)
        rows.append({u"--%1 %2"_s.arg(option.name, option.value), option.description});
    //: Help of the command line, beside "--help".
    rows.append({u"--help"_s, Texts::tr("Show this help.")});

    qsizetype width = 0;
    for (const CommandSyntax::Word &row : std::as_const(rows))
        width = std::max(width, row.name.size());
    //: Help of the command line. The placeholder is how a command is written.
    QString text = Texts::tr("Usage: %1").arg(usage(syntax)) + u"\n\n"_s + syntax.description + u"\n"_s;
    for (const CommandSyntax::Word &row : std::as_const(rows))
        text += u"\n  "_s + row.name.leftJustified(width + 2) + row.description;
    return text;
}

/// The reason why the arguments don't fit, if they don't.
std::optional<QString> misfit(const CommandSyntax &syntax, const QStringList &words)
{
    if (words.size() < syntax.required.size()) {
        //: Error of the command line. The placeholder is the name of an argument, as the help has it.
        return Texts::tr("%1 is missing.").arg(syntax.required.at(words.size()).name);
    }
    if (syntax.repeated.name.isEmpty() && words.size() > syntax.required.size()) {
        //: Error of the command line. The placeholder is an argument.
        return Texts::tr("“%1” is one word too many.").arg(printable(words.at(syntax.required.size())));
    }
    return std::nullopt;
}

} // namespace

std::expected<CommandArguments, ExitStatus> CommandArguments::parse(const CommandSyntax &syntax,
                                                                    const QStringList &arguments, Output &output)
{
    QCommandLineParser parser;
    for (const CommandSyntax::Word &option : syntax.switches)
        parser.addOption(QCommandLineOption(option.name));
    for (const CommandSyntax::Option &option : syntax.options)
        parser.addOption(QCommandLineOption(option.name, {}, option.value));
    parser.addOption(QCommandLineOption(QStringList{u"h"_s, u"help"_s}));
    const bool isUnderstood = parser.parse(QStringList(u"vantrel"_s) + arguments);
    if (isUnderstood && parser.isSet(u"help"_s)) {
        output.line(help(syntax));
        return std::unexpected(ExitStatus::done);
    }
    const auto reason =
        isUnderstood ? misfit(syntax, parser.positionalArguments()) : std::optional(printable(parser.errorText()));
    if (reason) {
        //: Error of the command line. First: what is wrong; second: a command.
        output.message(Texts::tr("%1\nTry “%2”.").arg(*reason, u"vantrel %1 --help"_s.arg(syntax.command)));
        return std::unexpected(ExitStatus::wrongUsage);
    }
    CommandArguments result{.words = parser.positionalArguments(), .switches = {}};
    for (const CommandSyntax::Word &option : syntax.switches) {
        if (parser.isSet(option.name))
            result.switches.append(option.name);
    }
    for (const CommandSyntax::Option &option : syntax.options) {
        if (parser.isSet(option.name))
            result.values.insert(option.name, parser.value(option.name));
    }
    return result;
}

} // namespace vantrel
