#include "Vantrel/Actions/SearchTerms.h"

#include "Vantrel/Actions/FoldedText.h"
#include "VantrelKit/WebLinks.h"

namespace vantrel {

SearchTerms SearchTerms::parse(const QStringList &terms)
{
    SearchTerms parsed;
    const QString text = terms.join(u' ').simplified();
    for (const QString &word : text.split(u' ', Qt::SkipEmptyParts)) {
        if (const auto link = openableLink(word))
            parsed.links.append(*link);
        else if (const QString folded = foldedText(word); !folded.isEmpty())
            parsed.words.append(folded);
    }
    return parsed;
}

std::optional<QUrl> openableLink(const QString &text)
{
    const QUrl link(text);
    // "https:" is one that is still being typed, and a file of another computer is none that a browser could read.
    const bool isWhole =
        link.isLocalFile() ? link.host().isEmpty() && link.path().startsWith(u'/') : !link.host().isEmpty();
    return link.isValid() && isWhole && !openableLinks({link}).isEmpty() ? std::optional(link) : std::nullopt;
}

} // namespace vantrel
