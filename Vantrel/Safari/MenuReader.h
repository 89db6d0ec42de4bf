#pragma once

#include "Vantrel/Clock.h"
#include "Vantrel/Safari/Languages.h"
#include "Vantrel/Safari/Scripting.h"
#include "Vantrel/Safari/Scripts.h"

namespace vantrel::Safari {

/// The menu that lists the profiles, with all its items.
struct ProfileItems {
    QStringList titles;
    MenuLayout layout = MenuLayout::flat;

    friend bool operator==(const ProfileItems &, const ProfileItems &) = default;
};

/// Reads the menus of a Safari that may just have been started, and is then not ready to show them: what can't be read
/// is tried again, but failures that would stay the same are passed on at once. `name` is Safari's. Main thread only.
class MenuReader {
public:
    /// What it works with; all must outlive it.
    struct Environment {
        Scripting &scripting;
        Languages &languages;
        Clock &clock;
        LogSink &log;
    };

    explicit MenuReader(const Environment &environment);

    /// The language that Safari runs in; none when its menu bar stays unreadable.
    [[nodiscard]] QCoro::Task<Result<std::optional<SafariLanguage>>> language(QString name);

    /// None when the menu stays unreadable.
    [[nodiscard]] QCoro::Task<Result<std::optional<ProfileItems>>> profileItems(QString name, SafariLanguage language);

private:
    [[nodiscard]] QCoro::Task<Result<ProfileItems>> readItems(QString name, SafariLanguage language);

    Environment environment_;
    LogChannel log_;
};

} // namespace vantrel::Safari
