#include "VantrelKit/ChromiumPreferences.h"

#include "VantrelKit/JsonFile.h"

namespace vantrel {

std::optional<ChromiumPreferences> ChromiumPreferences::read(const QString &path)
{
    const auto root = json::readObject(path);
    if (!root)
        return std::nullopt;

    ChromiumPreferences preferences;
    simdjson::dom::object profile;
    switch (json::member(*root, "profile", profile)) {
    case json::Member::absent: return preferences;
    case json::Member::mistyped: return std::nullopt;
    case json::Member::present: break;
    }
    if (!json::readText(profile, "name", preferences.name))
        return std::nullopt;
    return preferences;
}

} // namespace vantrel
