#pragma once

#include <QByteArray>
#include <QCoroTask>
#include <QImage>
#include <QList>
#include <QStringList>

#include <cstdint>
#include <expected>
#include <functional>

namespace vantrel {

/// What the app answers to other programs that ask for profiles. An answer may take its time: the first question may be
/// what has started the app. Main thread only.
class ProfileAnswers {
public:
    /// A profile that a search has found.
    struct Found {
        /// Best first.
        enum class Fit : std::uint8_t { wholeName, beginOfName, somewhere };

        /// By which it is opened. With links to open it isn't the profile's id.
        QString id;
        /// Its full title.
        QString title;
        /// What choosing it does.
        QString subtitle;
        Fit fit = Fit::somewhere;
        /// Its round picture, drawn for a side of that many pixels.
        std::function<QImage(int pixels)> icon;
        /// The same as a PNG file.
        std::function<QByteArray(int pixels)> iconPNG;
    };

    struct Listed {
        QString id;
        QString browserBundleID;
        QString browser;
        QString family;
        QString name;
        QString displayName;
        QString title;
        bool isPrivate = false;
        bool isHidden = false;
        QString link;
    };

    /// What lets a browser come to the front on behalf of the user's act. Empty or 0 for none.
    struct Activation {
        QString token;
        QString startupID;
        /// Of the window system's clock, in milliseconds.
        std::uint32_t time = 0;
    };

    struct Refusal {
        enum class Reason : std::uint8_t { unknownProfile, badLink };

        Reason reason = Reason::unknownProfile;
        QString message;

        friend bool operator==(const Refusal &, const Refusal &) = default;
    };

    using Outcome = std::expected<void, Refusal>;

    virtual ~ProfileAnswers() = default;

    /// At most `limit`, the best first; none when nothing was typed. Desktops split what was typed or don't.
    [[nodiscard]] virtual QCoro::Task<QList<Found>> search(QStringList terms, qsizetype limit) = 0;

    /// What was found under these ids, as it is now. What is gone is left out.
    [[nodiscard]] virtual QCoro::Task<QList<Found>> found(QStringList ids) = 0;

    /// Done when the browser has taken on the start, or when a failure of it was shown to the user.
    [[nodiscard]] virtual QCoro::Task<Outcome> openFound(QString id, Activation activation) = 0;

    /// Shows the app's own list of profiles.
    virtual void showList(const Activation &activation) = 0;

    /// The profiles of all installed browsers, those that are hidden from the menu included.
    [[nodiscard]] virtual QCoro::Task<QList<Listed>> list() = 0;

    /// Opens a profile by its id. Nothing is opened when one of the links is none that a browser may be given. Done as
    /// `openFound`.
    [[nodiscard]] virtual QCoro::Task<Outcome> open(QString profileID, QStringList links, Activation activation) = 0;
};

} // namespace vantrel
