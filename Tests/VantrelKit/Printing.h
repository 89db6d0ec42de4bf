#pragma once

#include "VantrelKit/DataFolder.h"
#include "VantrelKit/DecodingError.h"
#include "VantrelKit/DiscoveredProfile.h"
#include "VantrelKit/LaunchCommand.h"
#include "VantrelKit/LaunchLink.h"
#include "VantrelKit/ProfileDiscoveryError.h"
#include "VantrelKit/ProfileJson.h"

#include <QDebug>
#include <QJsonDocument>
#include <QSize>

#include <ostream>

/// How GoogleTest shows the values of these tests when they are not what was expected. Found by their argument's
/// namespace, so that every test must see them: the other headers of this folder include this one.

template <typename Value>
void printDebugForm(const Value &value, std::ostream *stream)
{
    QString text;
    QDebug(&text).nospace() << value;
    *stream << text.toStdString();
}

inline void PrintTo(const QString &text, std::ostream *stream)
{
    printDebugForm(text, stream);
}

inline void PrintTo(const QByteArray &bytes, std::ostream *stream)
{
    printDebugForm(bytes.size() > 200 ? bytes.first(200) + "..." : bytes, stream);
}

inline void PrintTo(const QUrl &url, std::ostream *stream)
{
    printDebugForm(url, stream);
}

inline void PrintTo(const QSize &size, std::ostream *stream)
{
    *stream << size.width() << " x " << size.height();
}

inline void PrintTo(const QJsonObject &object, std::ostream *stream)
{
    *stream << QJsonDocument(object).toJson(QJsonDocument::Compact).toStdString();
}

namespace vantrel {

inline void PrintTo(const ProfileTarget &target, std::ostream *stream)
{
    PrintTo(toJson(target), stream);
}

inline void PrintTo(const Profile &profile, std::ostream *stream)
{
    PrintTo(toJson(profile), stream);
}

inline void PrintTo(const DiscoveredProfile &profile, std::ostream *stream)
{
    PrintTo(toJson(profile), stream);
}

inline void PrintTo(const ProfileDiscoveryError &error, std::ostream *stream)
{
    const bool denied = error.kind == ProfileDiscoveryError::Kind::accessDenied;
    *stream << (denied ? "accessDenied " : "readFailed ") << error.path.toStdString() << ' '
            << error.reason.toStdString();
}

inline void PrintTo(const DecodingError &error, std::ostream *stream)
{
    *stream << "kind " << static_cast<int>(error.kind) << ", " << error.message().toStdString();
}

inline void PrintTo(const FolderEntry &entry, std::ostream *stream)
{
    *stream << entry.name.toStdString() << (entry.isDirectory ? "/" : "") << " at " << entry.path.toStdString();
}

inline void PrintTo(const LaunchCommand &command, std::ostream *stream)
{
    printDebugForm(command.arguments, stream);
}

inline void PrintTo(const LaunchLink &link, std::ostream *stream)
{
    printDebugForm(
        QStringList{link.browserBundleID, link.profileName, link.profileID.value_or(QStringLiteral("(no id)"))},
        stream);
    printDebugForm(link.urls, stream);
}

} // namespace vantrel
