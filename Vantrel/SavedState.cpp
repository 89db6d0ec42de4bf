#include "Vantrel/SavedState.h"

#include "VantrelKit/JsonDecoding.h"
#include "VantrelKit/ProfileJson.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QSaveFile>
#include <QStandardPaths>

using namespace Qt::StringLiterals;

namespace vantrel {
namespace {

struct Texts {
    Q_DECLARE_TR_FUNCTIONS(SavedState)
};

/// In an order of its own, so that the same state always makes the same file.
QJsonArray sortedArray(const QSet<QString> &strings)
{
    QStringList list = strings.values();
    list.sort();
    return QJsonArray::fromStringList(list);
}

template <typename Value>
using Decoded = std::expected<Value, DecodingError>;

Decoded<QSet<QString>> decodeStrings(const QJsonObject &object, const QString &name)
{
    const auto array = json::array(object, name);
    if (!array)
        return std::unexpected(array.error());
    QSet<QString> strings;
    for (qsizetype index = 0; index < array->size(); ++index) {
        const auto string = json::string(array->at(index));
        if (!string)
            return std::unexpected(string.error().below(u"%1[%2]"_s.arg(name).arg(index)));
        strings.insert(*string);
    }
    return strings;
}

Decoded<QList<Profile>> decodeProfiles(const QJsonObject &object, const QString &name)
{
    const auto array = json::array(object, name);
    if (!array)
        return std::unexpected(array.error());
    QList<Profile> profiles;
    for (qsizetype index = 0; index < array->size(); ++index) {
        auto profile = profileFromJson(array->at(index));
        if (!profile)
            return std::unexpected(profile.error().below(u"%1[%2]"_s.arg(name).arg(index)));
        profiles.append(*std::move(profile));
    }
    return profiles;
}

Decoded<QHash<QString, QString>> decodeNames(const QJsonObject &object, const QString &name)
{
    const auto value = json::member(object, name);
    if (!value)
        return std::unexpected(value.error());
    const auto names = json::object(*value);
    if (!names)
        return std::unexpected(names.error().below(name));
    QHash<QString, QString> result;
    for (auto entry = names->constBegin(); entry != names->constEnd(); ++entry) {
        const auto string = json::string(entry.value());
        if (!string)
            return std::unexpected(string.error().below(name + u'.' + entry.key()));
        result.insert(entry.key(), *string);
    }
    return result;
}

} // namespace

QString SavedState::defaultPath()
{
    return QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) +
           "/app.kestrune.Vantrel/profiles.json"_L1;
}

std::expected<SavedState, DecodingError> SavedState::decode(const QByteArray &json)
{
    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson(json, &error);
    if (error.error != QJsonParseError::NoError)
        return std::unexpected(DecodingError{DecodingError::Kind::dataCorrupted, {}, error.errorString()});
    if (!document.isObject())
        return std::unexpected(DecodingError{DecodingError::Kind::typeMismatch, {}, u"Expected an object."_s});
    const QJsonObject object = document.object();
    auto profiles = decodeProfiles(object, u"profiles"_s);
    if (!profiles)
        return std::unexpected(profiles.error());
    auto hidden = decodeStrings(object, u"hidden"_s);
    if (!hidden)
        return std::unexpected(hidden.error());
    auto customNames = decodeNames(object, u"customNames"_s);
    if (!customNames)
        return std::unexpected(customNames.error());
    auto searchedSafari = decodeStrings(object, u"searchedSafari"_s);
    if (!searchedSafari)
        return std::unexpected(searchedSafari.error());
    return SavedState{*std::move(profiles), *std::move(hidden), *std::move(customNames), *std::move(searchedSafari)};
}

std::expected<SavedState, DecodingError> SavedState::read(const QString &path)
{
    QFile file(path);
    if (!QFileInfo(path).isFile() || !file.open(QIODevice::ReadOnly))
        return SavedState();
    return decode(file.readAll());
}

QByteArray SavedState::encode() const
{
    QJsonArray records;
    for (const Profile &profile : profiles)
        records.append(toJson(profile));
    QJsonObject names;
    for (auto entry = customNames.constBegin(); entry != customNames.constEnd(); ++entry)
        names.insert(entry.key(), entry.value());
    const QJsonObject envelope{
        {u"profiles"_s, records},
        {u"hidden"_s, sortedArray(hidden)},
        {u"customNames"_s, names},
        {u"searchedSafari"_s, sortedArray(searchedSafari)},
    };
    return QJsonDocument(envelope).toJson(QJsonDocument::Compact);
}

std::expected<void, QString> SavedState::write(const QString &path) const
{
    const QString folder = QFileInfo(path).path();
    if (!QDir().mkpath(folder)) {
        //: Reason in the log why the profiles were not saved. The placeholder is a folder's path.
        return std::unexpected(Texts::tr("The folder %1 can't be made.").arg(folder));
    }
    QSaveFile file(path);
    const QByteArray json = encode();
    if (!file.open(QIODevice::WriteOnly) || file.write(json) != json.size() || !file.commit())
        return std::unexpected(file.errorString());
    return {};
}

} // namespace vantrel
