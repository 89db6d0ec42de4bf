#pragma once

#include "Vantrel/CommandLine/CommandContext.h"

#include <QStringList>

#include <expected>

namespace vantrel {

/// What a command takes, for reading its arguments and for its help.
struct CommandSyntax {
    struct Word {
        QString name;
        QString description;
    };

    QString command;
    QString description;
    /// Switches without a value, without their dashes.
    QList<Word> switches;
    /// The words that must be given.
    QList<Word> required;
    /// Further words, any number; an empty name for none.
    Word repeated;
};

/// A command's arguments taken apart.
struct CommandArguments {
    QStringList words;
    QStringList switches;

    [[nodiscard]] bool has(QStringView name) const { return switches.contains(name); }

    /// `arguments` are those after the command's name. Where there is nothing more to do (help was asked for and given,
    /// or the usage is wrong and that was said), the status to end with.
    [[nodiscard]] static std::expected<CommandArguments, ExitStatus>
    parse(const CommandSyntax &syntax, const QStringList &arguments, Output &output);
};

} // namespace vantrel
