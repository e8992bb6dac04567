// Where windows stood, for the next time. Places are remembered under a name and come back onto the screens that are
// there then.
#pragma once

#include <QPoint>
#include <QRect>
#include <QString>

#include <map>
#include <optional>

class QSettings;
class QWidget;

namespace host {

// Moved, and made smaller where it must be, until it lies on the screen that it was on, or on the first one.
QRect OntoScreen(const QRect& frame);
// The same for a window whose size stays. The corner, here and below, is that of its inside: its frame's is not known
// before the window manager has given it one.
void MoveOntoScreen(QWidget& window, QPoint corner);

// Of the dialogs beside a view.
class DialogPlaces {
  public:
    // Kept there between two runs; null keeps them for this run only.
    void SetSettings(QSettings* settings) { m_settings = settings; }
    std::optional<QPoint> PlaceOf(const QString& name) const; // the corner; empty when nobody moved it yet
    void Remember(const QString& name, QPoint corner);

  private:
    QSettings* m_settings = nullptr;
    std::map<QString, QPoint> m_places;
};

// The main window, with its state. Without a place it leaves room beside it for the dialogs where the screen has it.
void RestoreMainWindow(QWidget& window, const QSettings& settings);
void RememberMainWindow(const QWidget& window, QSettings& settings);

} // namespace host
