#include "Tests/VantrelKit/Safari/StringsTexts.h"

#include <QStringEncoder>

using namespace Qt::StringLiterals;

namespace vantrel::test {
namespace {

QByteArray encoded(const QString &text, QStringEncoder::Encoding encoding)
{
    QStringEncoder encoder(encoding, QStringEncoder::Flag::WriteBom);
    return encoder.encode(text);
}

} // namespace

QString shown(const std::expected<StringsFile, StringsFileError> &file)
{
    if (!file)
        return file.error().message();
    QStringList parts;
    for (auto entry = file->texts.cbegin(); entry != file->texts.cend(); ++entry)
        parts.append(entry.key() + u'=' + entry.value());
    for (const QString &key : file->otherKeys)
        parts.append(key + u'?');
    parts.sort();
    return parts.join(u';');
}

QByteArray littleEndian(const QString &text)
{
    return encoded(text, QStringEncoder::Utf16LE);
}

QByteArray bigEndian(const QString &text)
{
    return encoded(text, QStringEncoder::Utf16BE);
}

} // namespace vantrel::test
