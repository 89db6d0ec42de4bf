#pragma once

#include "Vantrel/Interface/Settings/SymbolIcons.h"
#include "Vantrel/Settings/SettingsNote.h"

#include <QPushButton>
#include <QWidget>

namespace vantrel {

/// A note with its symbol, and its button when it has one.
class NoteView final : public QWidget {
    Q_OBJECT

public:
    /// The icons must outlive it.
    NoteView(const SymbolIcons &icons, const SettingsNote &note, QWidget *parent = nullptr);

    /// Null without one.
    [[nodiscard]] QPushButton *button() const { return button_; }

Q_SIGNALS:
    void actionAsked(vantrel::SettingsNote::Action action);

private:
    QPushButton *button_ = nullptr;
};

} // namespace vantrel
