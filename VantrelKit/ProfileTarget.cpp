#include "VantrelKit/ProfileTarget.h"

#include "VantrelKit/Overloaded.h"

#include <QHashFunctions>

using namespace Qt::StringLiterals;

namespace vantrel {
namespace {

/// A folder of the browser's data folder, and not a way out of it: the name may come from a link.
bool isSingleFolderName(const QString &name)
{
    return !name.contains(u'/') && name != "."_L1 && name != ".."_L1;
}

} // namespace

ProfileTarget ProfileTarget::safariProfile(QString name, qint64 index)
{
    return {SafariProfile{std::move(name), index}};
}

ProfileTarget ProfileTarget::safariPrivate()
{
    return {SafariPrivate{}};
}

ProfileTarget ProfileTarget::chromium(QString folder)
{
    return {Chromium{std::move(folder)}};
}

ProfileTarget ProfileTarget::chromiumPrivate()
{
    return {ChromiumPrivate{}};
}

ProfileTarget ProfileTarget::firefox(QString path)
{
    return {Firefox{std::move(path)}};
}

ProfileTarget ProfileTarget::firefoxPrivate()
{
    return {FirefoxPrivate{}};
}

ProfileTarget ProfileTarget::privateWindow(BrowserFamily family)
{
    switch (family) {
    case BrowserFamily::safari: return safariPrivate();
    case BrowserFamily::chromium: return chromiumPrivate();
    case BrowserFamily::firefox: return firefoxPrivate();
    }
    Q_UNREACHABLE();
}

std::optional<ProfileTarget> ProfileTarget::fromKey(const QString &key, BrowserFamily family)
{
    if (key == "private"_L1)
        return privateWindow(family);
    const qsizetype colon = key.indexOf(u':');
    if (colon < 0 || colon + 1 == key.size())
        return std::nullopt;
    const QString payload = key.mid(colon + 1);
    switch (family) {
    case BrowserFamily::safari: return safariProfile(payload, -1);
    case BrowserFamily::chromium: return isSingleFolderName(payload) ? std::optional(chromium(payload)) : std::nullopt;
    case BrowserFamily::firefox: return firefox(payload);
    }
    Q_UNREACHABLE();
}

QString ProfileTarget::key() const
{
    return std::visit(Overloaded{
                          [](const SafariProfile &profile) -> QString { return "safari:"_L1 + profile.name; },
                          [](const Chromium &profile) -> QString { return "chromium:"_L1 + profile.folder; },
                          [](const Firefox &profile) -> QString { return "firefox:"_L1 + profile.path; },
                          [](const auto &) { return u"private"_s; },
                      },
                      value);
}

bool ProfileTarget::isPrivate() const
{
    return std::holds_alternative<SafariPrivate>(value) || std::holds_alternative<ChromiumPrivate>(value) ||
           std::holds_alternative<FirefoxPrivate>(value);
}

size_t qHash(const ProfileTarget &target, size_t seed)
{
    const auto payloadHash = std::visit(
        Overloaded{
            [](const ProfileTarget::SafariProfile &profile) { return qHashMulti(0, profile.name, profile.index); },
            [](const ProfileTarget::Chromium &profile) { return qHash(profile.folder); },
            [](const ProfileTarget::Firefox &profile) { return qHash(profile.path); },
            [](const auto &) { return size_t{0}; },
        },
        target.value);
    return qHashMulti(seed, target.value.index(), payloadHash);
}

} // namespace vantrel
