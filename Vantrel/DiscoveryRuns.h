#pragma once

#include "Platform/BrowserData.h"
#include "Platform/FolderAccess.h"
#include "Platform/RunningApplications.h"
#include "Platform/Workspace.h"
#include "Vantrel/ProfileStore.h"

#include <QThreadPool>

namespace vantrel {

/// Fills the store: once at start, and again for a browser that quits or whose folder was opened to us. Browsers' files
/// are read on other threads, and what was found is applied on the main thread, where all else happens. A browser that
/// is asked for while it is being read is read once more afterwards.
class DiscoveryRuns final : public QObject {
    Q_OBJECT

public:
    /// What it works with; all must outlive it.
    struct Environment {
        const Workspace &workspace;
        const BrowserData &browserData;
        RunningApplications &runningApplications;
        /// Null where the system grants access to folders in no such way.
        FolderAccess *folderAccess = nullptr;
        /// Null where there is no Safari.
        SafariSearch *safari = nullptr;
    };

    DiscoveryRuns(ProfileStore &store, Environment environment, ProfileReader reader);
    /// Waits for the reading that is under way.
    ~DiscoveryRuns() override;
    Q_DISABLE_COPY_MOVE(DiscoveryRuns)

    /// Loads the store, finds the installed browsers, starts the first run over all of them and follows their quitting
    /// from then on. Does nothing the second time, or when the store isn't live.
    void start();

    /// Reads every installed browser of the Chromium and Firefox families.
    void discoverAll();

    /// Reads one browser. Nothing happens when it isn't installed or is a Safari.
    void discoverBrowser(const QString &bundleID);

    /// Whether the user can be asked to grant access to the browser's folder.
    [[nodiscard]] bool canRequestAccess(const QString &bundleID) const;

    /// Asks for it, and reads the browser when the user agrees.
    void requestAccess(const QString &bundleID);

    /// Whether the browser is a Safari whose profiles can be searched, and isn't being searched already.
    [[nodiscard]] bool canSearchSafari(const QString &bundleID) const;

    /// Searches them, which may start Safari; only the user asks for that.
    void searchSafari(const QString &bundleID);

    /// Whether nothing is being read. A search of Safari doesn't count.
    [[nodiscard]] bool isIdle() const { return reading_.isEmpty(); }

Q_SIGNALS:
    /// A run's results are in the store, and nothing is being read any more.
    void idle();

private:
    void discover(const QList<Browser> &browsers);
    void finish(const DiscoveryResults &results);
    QCoro::Task<> ask(FolderAccess::Panel panel, QString bundleID);
    QCoro::Task<> search(Browser safari);
    /// Null when it isn't installed.
    [[nodiscard]] const Browser *installed(const QString &bundleID) const;

    ProfileStore &store_;
    Environment environment_;
    ProfileReader reader_;
    /// Bundle identifiers.
    QSet<QString> reading_;
    QSet<QString> readAgain_;
    QThreadPool pool_;
};

} // namespace vantrel
