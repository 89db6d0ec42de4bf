#pragma once

#include <QStringList>
#include <QTranslator>

namespace vantrel {

/// The program's texts in a language of the user's. English is what the sources hold: for it nothing is loaded. Needs
/// the application object, and must go before it does.
class Translations {
public:
    /// BCP 47 tags, the most wanted one first. Empty in the C locale, where LANGUAGE doesn't count, as with other
    /// programs.
    [[nodiscard]] static QStringList userLanguages();

    /// Shows texts in the first of these languages that there are texts for, English among them; the toolkit's own in
    /// the same language, where they are installed. To be called once.
    void install(const QStringList &languages);

    /// Of the language whose texts are shown, which need not be the user's first.
    [[nodiscard]] Qt::LayoutDirection layoutDirection() const;

private:
    QTranslator texts_;
    QTranslator toolkitTexts_;
};

} // namespace vantrel
