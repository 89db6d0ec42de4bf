#include "Vantrel/Translations/Translations.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QLocale>

using namespace Qt::StringLiterals;

namespace vantrel {

QStringList Translations::userLanguages()
{
    const QLocale locale;
    return locale.language() == QLocale::C ? QStringList() : locale.uiLanguages();
}

void Translations::install(const QStringList &languages)
{
    for (const QString &language : languages) {
        if (QLocale(language).language() == QLocale::English)
            return;
        // Without a file for the country, that for the language is taken.
        if (!texts_.load("vantrel_"_L1 + QString(language).replace(u'-', u'_'), u":/vantrel/translations"_s))
            continue;
        QCoreApplication::installTranslator(&texts_);
        if (toolkitTexts_.load("qtbase_"_L1 + texts_.language(), QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
            QCoreApplication::installTranslator(&toolkitTexts_);
        return;
    }
}

Qt::LayoutDirection Translations::layoutDirection() const
{
    return texts_.isEmpty() ? Qt::LeftToRight : QLocale(texts_.language()).textDirection();
}

} // namespace vantrel
