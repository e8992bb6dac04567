#include "host/ui/WindowPlaces.h"

#include <QGuiApplication>
#include <QScreen>
#include <QSettings>
#include <QWidget>

#include <algorithm>

namespace host {

namespace {

const QString mainKey = QStringLiteral("finestra");
const QString dialogGroup = QStringLiteral("dialoghi/");

// Pixels that a window manager's frame takes, with a caption.
const QPoint frameCorner(4, 32);
const QSize frameSize(8, 40);

QRect ScreenOf(const QPoint& place) {
    const QScreen* screen = QGuiApplication::screenAt(place);
    return (screen ? screen : QGuiApplication::primaryScreen())->availableGeometry();
}

} // namespace

QRect OntoScreen(const QRect& frame) {
    const QRect screen = ScreenOf(frame.center());
    const QSize size = frame.size().boundedTo(screen.size());
    return {QPoint(std::clamp(frame.x(), screen.x(), screen.right() - size.width() + 1),
                   std::clamp(frame.y(), screen.y(), screen.bottom() - size.height() + 1)),
            size};
}

void MoveOntoScreen(QWidget& window, QPoint corner) {
    const QRect fitting = OntoScreen(QRect(corner - frameCorner, window.size() + frameSize));
    window.setGeometry(QRect(fitting.topLeft() + frameCorner, window.size()));
}

std::optional<QPoint> DialogPlaces::PlaceOf(const QString& name) const {
    if (const auto found = m_places.find(name); found != m_places.end())
        return found->second;
    if (m_settings && m_settings->contains(dialogGroup + name))
        return m_settings->value(dialogGroup + name).toPoint();
    return std::nullopt;
}

void DialogPlaces::Remember(const QString& name, QPoint corner) {
    m_places[name] = corner;
    if (m_settings)
        m_settings->setValue(dialogGroup + name, corner);
}

void RestoreMainWindow(QWidget& window, const QSettings& settings) {
    constexpr int beside = 496, least = 780; // pixels: of the widest dialogs, and of the window
    const QRect screen = QGuiApplication::primaryScreen()->availableGeometry();
    QRect place(screen.topLeft(), window.size() + frameSize);
    place.setWidth(std::clamp(screen.width() - beside, least, std::max(least, place.width())));
    if (window.restoreGeometry(settings.value(mainKey).toByteArray())) {
        if (window.isMaximized() || window.isFullScreen())
            return;
        place = QRect(window.pos(), window.size() + frameSize);
        if (OntoScreen(place) == place)
            return;
    }
    place = OntoScreen(place);
    window.resize(place.size() - frameSize);
    window.move(place.topLeft());
}

void RememberMainWindow(const QWidget& window, QSettings& settings) {
    settings.setValue(mainKey, window.saveGeometry());
}

} // namespace host
