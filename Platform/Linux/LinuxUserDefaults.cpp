#include "Platform/Linux/LinuxUserDefaults.h"

#include "VantrelKit/Paths.h"

#include <QFile>

using namespace Qt::StringLiterals;

namespace vantrel {
namespace {

/// QSettings takes slashes of both kinds for groups and joins those that follow each other. Their escaped forms, and so
/// the sign that escapes, are plain characters to it.
QString flatKey(QString key)
{
    return key.replace(u'%', "%25"_L1).replace(u'/', "%2F"_L1).replace(u'\\', "%5C"_L1);
}

/// The format has no types: a truth value is stored as the word for it. The same word as a string is stored as bytes,
/// which the format marks.
bool isWordForTruth(const QVariant &value)
{
    return value.typeId() == QMetaType::QString && (value == u"true"_s || value == u"false"_s);
}

} // namespace

LinuxUserDefaults::LinuxUserDefaults(const QString &path)
    : file_(QFile::encodeName(path)),
      settings_(path, QSettings::IniFormat)
{
}

QString LinuxUserDefaults::defaultPath(const Environment &environment)
{
    return joinedPath(environment.configHome, u"app.kestrune.Vantrel/defaults.ini"_s);
}

QVariant LinuxUserDefaults::value(const QString &key) const
{
    takeChangesOfOthers();
    const QVariant value = settings_.value(flatKey(key));
    switch (value.typeId()) {
    case QMetaType::QByteArray: return QString::fromUtf8(value.toByteArray());
    // Text with a comma that somebody wrote without quotation marks.
    case QMetaType::QStringList: return value.toStringList().join(", "_L1);
    default: return isWordForTruth(value) ? QVariant(value == u"true"_s) : value;
    }
}

void LinuxUserDefaults::takeChangesOfOthers() const
{
    // QSettings asks the file system by itself too, but slowly: a menu wants a value for each of a thousand rows.
    const FileState state = FileState::of(file_);
    if (state == state_)
        return;
    settings_.sync();
    state_ = state;
}

void LinuxUserDefaults::setValue(const QString &key, const QVariant &value)
{
    settings_.setValue(flatKey(key), isWordForTruth(value) ? QVariant(value.toString().toUtf8()) : value);
    settings_.sync();
}

void LinuxUserDefaults::remove(const QString &key)
{
    settings_.remove(flatKey(key));
    settings_.sync();
}

} // namespace vantrel
