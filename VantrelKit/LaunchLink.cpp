#include "VantrelKit/LaunchLink.h"

#include "VantrelKit/Profile.h"
#include "VantrelKit/WebLinks.h"

#include <QStringDecoder>
#include <QStringList>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace vantrel {
namespace {

constexpr auto scheme = "vantrel"_L1;

namespace item {
constexpr auto browser = "browserBundleIdentifier"_L1;
constexpr auto name = "profileName"_L1;
constexpr auto profile = "profile"_L1;
constexpr auto url = "url"_L1;
} // namespace item

struct QueryItem {
    QString name;
    QString value;
};

/// Not `QUrl::fromPercentEncoding`, which drops a byte-order mark that a name begins with.
QString decoded(QStringView text)
{
    QStringDecoder decoder(QStringDecoder::Utf8,
                           QStringDecoder::Flag::Stateless | QStringDecoder::Flag::ConvertInitialBom);
    return decoder.decode(QByteArray::fromPercentEncoding(text.toUtf8()));
}

/// Not `QUrlQuery`, which keeps some characters encoded or decodes them twice, depending on what stands around them.
QList<QueryItem> queryItems(const QUrl &url)
{
    QList<QueryItem> items;
    const QString query = url.query(QUrl::FullyEncoded);
    for (const QStringView part : QStringView(query).split(u'&')) {
        const qsizetype equals = part.indexOf(u'=');
        const QStringView value = equals < 0 ? QStringView() : part.sliced(equals + 1);
        items.append({decoded(equals < 0 ? part : part.first(equals)), decoded(value)});
    }
    return items;
}

/// The value of the first item of that name; none when it is missing or empty.
std::optional<QString> firstValue(const QList<QueryItem> &items, QLatin1StringView name)
{
    const auto found = std::ranges::find(items, name, &QueryItem::name);
    if (found == items.end() || found->value.isEmpty())
        return std::nullopt;
    return found->value;
}

QString encodedItem(QLatin1StringView name, const QString &value)
{
    // What RFC 3986 allows in a query stays as it is, except "&", "=" and "+", which readers of queries take apart.
    static const QByteArray unencoded = "!$'()*,/:;?@"_ba;
    const bool canBeEncoded = value.isValidUtf16();
    return name + u'=' + (canBeEncoded ? QString::fromLatin1(QUrl::toPercentEncoding(value, unencoded)) : value);
}

} // namespace

LaunchLink LaunchLink::forProfile(const Profile &profile)
{
    return {
        .browserBundleID = profile.browserBundleID, .profileName = profile.name, .profileID = profile.id(), .urls = {}};
}

std::optional<LaunchLink> LaunchLink::parse(const QUrl &url)
{
    if (url.scheme().toLower() != scheme || !url.hasQuery())
        return std::nullopt;
    const QList<QueryItem> items = queryItems(url);
    const auto browser = firstValue(items, item::browser);
    const auto name = firstValue(items, item::name);
    const auto profile = firstValue(items, item::profile);
    if (!browser || (!name && !profile))
        return std::nullopt;

    QList<QUrl> urls;
    for (const QueryItem &candidate : items) {
        if (candidate.name != item::url)
            continue;
        if (const QUrl link(candidate.value); link.isValid())
            urls.append(link);
    }
    return LaunchLink{*browser, name.value_or(QString()), profile, openableLinks(urls)};
}

std::optional<LaunchLink> LaunchLink::parse(const QString &text)
{
    return parse(QUrl(text));
}

QString LaunchLink::text() const
{
    QStringList items{encodedItem(item::browser, browserBundleID), encodedItem(item::name, profileName)};
    if (profileID)
        items.append(encodedItem(item::profile, *profileID));
    for (const QUrl &url : urls)
        items.append(encodedItem(item::url, linkText(url)));
    return scheme + "://?"_L1 + items.join(u'&');
}

} // namespace vantrel
