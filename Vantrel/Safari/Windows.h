#pragma once

#include "Platform/AccessibilityTrust.h"
#include "Platform/RunningApplications.h"
#include "Vantrel/Safari/Connector.h"
#include "Vantrel/Safari/LinkPlacer.h"
#include "Vantrel/Safari/MenuReader.h"
#include "Vantrel/Safari/WindowOpener.h"
#include "Vantrel/SafariOpening.h"

namespace vantrel::Safari {

/// Opens Safari's windows through its menu and its keys. Main thread only.
class Windows final : public SafariOpening {
public:
    /// What it works with; all must outlive it.
    struct Environment {
        Connector &connector;
        MenuReader &menus;
        Scripting &scripting;
        WindowOpener &windows;
        AccessibilityTrust &accessibility;
        const RunningApplications &runningApplications;
        LogSink &log;
    };

    explicit Windows(const Environment &environment);

    [[nodiscard]] Step openProfile(QString name, qint64 index, Browser browser, QList<QUrl> links) override;
    [[nodiscard]] Step openPrivateWindow(Browser browser, QList<QUrl> links) override;
    [[nodiscard]] Step openOrdinaryWindow(const Browser &browser, QList<QUrl> links);

private:
    /// A profile and where it is to be looked for.
    struct Wanted {
        QString name;
        qint64 index;
        QString safari;
        SafariLanguage language;
    };

    [[nodiscard]] QCoro::Task<Result<Connection>> connect(Browser browser);
    [[nodiscard]] QCoro::Task<Result<SafariLanguage>> language(Browser browser);
    [[nodiscard]] QCoro::Task<Result<>> attempt(Wanted wanted, int number);
    [[nodiscard]] QCoro::Task<Result<>> click(Wanted wanted, ProfileItems items);
    [[nodiscard]] QCoro::Task<Result<>> openPlace(Wanted wanted, int number);
    [[nodiscard]] QCoro::Task<Result<>> run(QString script);
    [[nodiscard]] Step openWithKeys(Browser browser, QString script, QList<QUrl> links);
    [[nodiscard]] Step show(Connection connection, QString safari, WindowOpener::Attempt attempt, QList<QUrl> links);
    [[nodiscard]] Failure logged(const Failure &failure) const;

    Environment environment_;
    LogChannel log_;
    LinkPlacer links_;
};

} // namespace vantrel::Safari
