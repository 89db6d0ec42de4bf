#include "VantrelKit/Safari/StringsFile.h"

#include "VantrelKit/Safari/StringsPropertyList.h"
#include "VantrelKit/Safari/StringsTextParser.h"

#include <QFile>
#include <QFileInfo>
#include <QStringDecoder>

using namespace Qt::StringLiterals;

namespace vantrel {
namespace {

struct Encoding {
    QStringDecoder::Encoding encoding;
    QByteArrayView mark;
    const char *failure;
};

constexpr QByteArrayView utf8Mark("\xEF\xBB\xBF");
constexpr QByteArrayView littleEndianMark("\xFF\xFE");
constexpr QByteArrayView bigEndianMark("\xFE\xFF");

Encoding encodingOf(const QByteArray &content)
{
    if (content.startsWith(littleEndianMark))
        return {QStringDecoder::Utf16LE, littleEndianMark, "It isn't UTF-16 text from beginning to end"};
    if (content.startsWith(bigEndianMark))
        return {QStringDecoder::Utf16BE, bigEndianMark, "It isn't UTF-16 text from beginning to end"};
    return {QStringDecoder::Utf8, content.startsWith(utf8Mark) ? utf8Mark : QByteArrayView(),
            "It isn't UTF-8 text from beginning to end"};
}

std::expected<QString, StringsFileError> decoded(const QByteArray &content)
{
    const Encoding encoding = encodingOf(content);
    const QByteArrayView bytes = QByteArrayView(content).sliced(encoding.mark.size());
    const bool isCutOff = encoding.encoding != QStringDecoder::Utf8 && bytes.size() % 2 != 0;
    // A second mark is no part of the encoding: it is a character of the text.
    QStringDecoder decoder(encoding.encoding,
                           QStringDecoder::Flag::Stateless | QStringDecoder::Flag::ConvertInitialBom);
    QString text = decoder.decode(bytes);
    if (isCutOff || decoder.hasError())
        return std::unexpected(StringsFileError{QString::fromLatin1(encoding.failure)});
    return text;
}

StringsFileError tooLarge()
{
    return {u"It is larger than %1 bytes"_s.arg(StringsFile::largestSize)};
}

} // namespace

std::expected<StringsFile, StringsFileError> StringsFile::parse(const QByteArray &content)
{
    if (content.size() > largestSize)
        return std::unexpected(tooLarge());
    if (content.startsWith("bplist"))
        return parseBinaryStrings(content);
    const auto text = decoded(content);
    if (!text)
        return std::unexpected(text.error());
    if (QStringView(*text).trimmed().startsWith(u'<'))
        return parseXmlStrings(text->toUtf8());
    return StringsTextParser(*text).parse();
}

std::expected<StringsFile, StringsFileError> StringsFile::read(const QString &path)
{
    // Opening anything but a plain file could block, as a pipe does.
    if (!QFileInfo(path).isFile())
        return std::unexpected(StringsFileError{u"There is no such file"_s});
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return std::unexpected(StringsFileError{file.errorString()});
    const QByteArray content = file.read(largestSize + 1);
    if (file.error() != QFileDevice::NoError)
        return std::unexpected(StringsFileError{file.errorString()});
    return parse(content);
}

bool StringsFile::setText(const QString &key, const QString &text)
{
    otherKeys.remove(key);
    texts.insert(key, text);
    return texts.size() + otherKeys.size() <= mostKeys;
}

bool StringsFile::setOther(const QString &key)
{
    texts.remove(key);
    otherKeys.insert(key);
    return texts.size() + otherKeys.size() <= mostKeys;
}

} // namespace vantrel
