#pragma once

#include "Vantrel/CommandLine/CommandContext.h"

#include <QHash>
#include <QStringList>

#include <expected>
#include <optional>

namespace vantrel {

/// What a command takes, for reading its arguments and for its help.
struct CommandSyntax {
    struct Word {
        QString name;
        QString description;
    };

    /// A switch with a value.
    struct Option {
        /// Without its dashes.
        QString name;
        /// What the help calls the value.
        QString value;
        QString description;
    };

    QString command;
    QString description;
    /// Switches without a value, without their dashes.
    QList<Word> switches;
    QList<Option> options = {};
    /// The words that must be given.
    QList<Word> required;
    /// Further words, any number; an empty name for none.
    Word repeated;
};

/// A command's arguments taken apart.
struct CommandArguments {
    QStringList words;
    QStringList switches;
    /// The values of the options that were given, by their names.
    QHash<QString, QString> values = {};

    [[nodiscard]] bool has(QStringView name) const { return switches.contains(name); }

    /// None when the option wasn't given.
    [[nodiscard]] std::optional<QString> value(const QString &option) const
    {
        return values.contains(option) ? std::optional(values.value(option)) : std::nullopt;
    }

    /// `arguments` are those after the command's name. Where there is nothing more to do (help was asked for and given,
    /// or the usage is wrong and that was said), the status to end with.
    [[nodiscard]] static std::expected<CommandArguments, ExitStatus>
    parse(const CommandSyntax &syntax, const QStringList &arguments, Output &output);
};

} // namespace vantrel
