#pragma once

#include "Vantrel/CatalogueLoader.h"
#include "Vantrel/CommandLine/CommandArguments.h"
#include "Vantrel/CommandLine/CommandContext.h"

#include <expected>

namespace vantrel {

/// A profile that the user named on the command line, its browser, and what is to be opened in it.
struct NamedProfile {
    Profile profile;
    Browser browser;
    /// The name that the user sees.
    QString displayName;
    /// The web links of the profile link that named it, then those given behind it.
    QList<QUrl> links;

    /// `words` are what names the profile and then the links. Searches no more browsers than the name makes necessary.
    /// Says why when there is no such profile or its browser isn't installed, and which links are left out.
    [[nodiscard]] static std::expected<NamedProfile, ExitStatus> find(const QStringList &words,
                                                                      const CommandContext &context);

    /// The word that names a profile, for the help of commands.
    [[nodiscard]] static CommandSyntax::Word syntax();
};

} // namespace vantrel
