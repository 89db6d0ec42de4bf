#include "Vantrel/CommandLine/Output.h"

#include "VantrelKit/PrintableText.h"

#include <QStringList>

using namespace Qt::StringLiterals;

namespace vantrel {
namespace {

void write(std::FILE *stream, const QByteArray &bytes)
{
    std::fwrite(bytes.constData(), 1, static_cast<size_t>(bytes.size()), stream);
}

} // namespace

void Output::line(const QString &text)
{
    write(results_, text.toUtf8() + '\n');
}

void Output::message(const QString &text)
{
    QByteArray lines;
    for (const QString &line : text.split(u'\n'))
        lines += printable(line).toUtf8() + '\n';
    write(messages_, "vantrel: " + lines);
}

bool Output::finish()
{
    const bool flushed = std::fflush(results_) == 0;
    return flushed && std::ferror(results_) == 0;
}

} // namespace vantrel
