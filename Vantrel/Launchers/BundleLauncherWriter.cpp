#include "Vantrel/Launchers/BundleLauncherWriter.h"

#include "Vantrel/Pictures/IconFamily.h"
#include "VantrelKit/LauncherBundle.h"
#include "VantrelKit/Paths.h"
#include "VantrelKit/PropertyList.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QUuid>

using namespace Qt::StringLiterals;

namespace vantrel {
namespace {

struct Texts {
    Q_DECLARE_TR_FUNCTIONS(BundleLauncherWriter)
};

constexpr auto website = "https://kestrune.app/vantrel"_L1;

/// The mark of files from the network, which the copy would inherit from the app.
const QString quarantine = u"com.apple.quarantine"_s;

FileSystem::Result failure(const QString &message)
{
    return std::unexpected(PlatformError{message});
}

QString contentsOf(const QString &bundle, const QString &relative)
{
    return joinedPath(bundle, "Contents/"_L1 + relative);
}

/// Whether there is a bundle of ours for the profile.
bool isLauncherOf(const QString &profileID, const QString &place)
{
    QFile list(contentsOf(place, u"Info.plist"_s));
    const QString identifier = u"<string>"_s + LauncherBundle::bundleIdentifier(profileID) + u"</string>"_s;
    return list.open(QIODevice::ReadOnly) && list.readAll().contains(identifier.toUtf8());
}

} // namespace

SavePanel::Panel BundleLauncherWriter::panel(const QString &title) const
{
    return {
        //: Title of the panel in which the place of a launcher app is chosen.
        .title = Texts::tr("Create Launcher App"),
        //: Message of the panel in which the place of a launcher app is chosen. The placeholder is a profile with its
        //: browser.
        .message = Texts::tr("Open “%1” from Spotlight, Launchpad, the Dock or Finder. Links dropped on it open in the "
                             "profile.")
                       .arg(title),
        //: Button of the panel in which the place of a launcher app is chosen.
        .confirmButton = Texts::tr("Create"),
        .folder = joinedPath(environment_.home, u"Applications"_s),
        .fileName = LauncherBundle::fileName(title),
    };
}

QString BundleLauncherWriter::placeIn(const std::optional<QString> &folder, const QString & /*profileID*/,
                                      const QString &title) const
{
    return joinedPath(folder.value_or(panel(title).folder), LauncherBundle::fileName(title));
}

FileSystem::Result BundleLauncherWriter::build(const Launcher &launcher, const QString &bundle) const
{
    FileSystem &files = environment_.files;
    const QString program = contentsOf(bundle, "MacOS/"_L1 + LauncherBundle::executableName);
    const QByteArray list = propertyListXML(
        LauncherBundle::infoPlist(launcher.title, launcher.profileID, launcher.link, environment_.version));
    for (const QString &folder : {u"MacOS"_s, u"Resources"_s}) {
        if (auto made = files.makeFolder(contentsOf(bundle, folder)); !made)
            return made;
    }
    if (auto copied = files.copyProgram(environment_.stub, program); !copied)
        return copied;
    if (auto written = files.write(contentsOf(bundle, u"Info.plist"_s), list, FileSystem::Access::readable); !written)
        return written;
    const QString icon = contentsOf(bundle, "Resources/"_L1 + LauncherBundle::iconName + ".icns"_L1);
    if (auto written = files.write(icon, iconFamilyFile(launcher.icon), FileSystem::Access::readable); !written)
        return written;
    return files.removeAttribute(program, quarantine);
}

QCoro::Task<std::expected<QUrl, PlatformError>> BundleLauncherWriter::write(Launcher launcher, QString place)
{
    if (!QFileInfo(environment_.stub).isFile()) {
        //: Error when the app is damaged. The placeholder is a web address, which ends the sentence without a stop.
        co_return std::unexpected(
            PlatformError{Texts::tr("Vantrel is missing a part that it needs to make launcher apps. Download Vantrel "
                                    "again from %1")
                              .arg(website)});
    }
    const QString folder =
        joinedPath(environment_.temporaryFolder, QUuid::createUuid().toString(QUuid::WithoutBraces).toUpper());
    const QString bundle = joinedPath(folder, lastPathComponent(place));
    if (const auto built = build(launcher, bundle); !built)
        co_return std::unexpected(built.error());
    const auto isSigned = co_await environment_.signer.sign(bundle);
    if (!isSigned)
        co_return std::unexpected(isSigned.error());
    if (const auto placed = environment_.files.replaceItem(place, bundle); !placed)
        co_return std::unexpected(placed.error());
    // The launcher is made, whatever becomes of the empty folder.
    std::ignore = environment_.files.remove(folder);
    co_return QUrl::fromLocalFile(place);
}

QCoro::Task<std::expected<void, PlatformError>> BundleLauncherWriter::remove(QString profileID, QString place)
{
    if (!isLauncherOf(profileID, place)) {
        //: Error when a launcher is to be removed. The placeholder is where it was looked for.
        co_return failure(Texts::tr("There is no launcher of this profile at %1.").arg(place));
    }
    co_return environment_.files.remove(place);
}

} // namespace vantrel
