#include "VantrelKit/ChromiumLocalState.h"

#include "VantrelKit/JsonFile.h"

namespace vantrel {
namespace {

using json::Member;

/// One wrongly typed member makes the whole file one of another shape.
std::optional<ChromiumLocalState> readInfoCache(const simdjson::dom::object &cache)
{
    ChromiumLocalState state;
    for (const auto &[folder, value] : cache) {
        simdjson::dom::object info;
        ChromiumLocalState::Info record;
        if (value.get(info) != simdjson::SUCCESS || !json::readText(info, "name", record.name) ||
            !json::readText(info, "avatar_icon", record.avatarIcon))
            return std::nullopt;
        state.infoCache.insert(QString::fromUtf8(folder.data(), static_cast<qsizetype>(folder.size())), record);
    }
    return state;
}

} // namespace

std::optional<ChromiumLocalState> ChromiumLocalState::read(const QString &path)
{
    const auto root = json::readObject(path);
    if (!root)
        return std::nullopt;

    simdjson::dom::object profile;
    simdjson::dom::object cache;
    const Member section = json::member(*root, "profile", profile);
    if (section != Member::present)
        return section == Member::absent ? std::optional(ChromiumLocalState()) : std::nullopt;
    const Member infoCache = json::member(profile, "info_cache", cache);
    if (infoCache != Member::present)
        return infoCache == Member::absent ? std::optional(ChromiumLocalState()) : std::nullopt;
    return readInfoCache(cache);
}

} // namespace vantrel
