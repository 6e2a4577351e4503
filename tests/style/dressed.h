#pragma once

#include "stylesheets.h"

#include <QDialog>
#include <QImage>
#include <QMainWindow>
#include <QString>

/// Widgets in the surroundings that they have in the application, and how they look there.
namespace Dressed {

/// A window whose sheet makes everything grey, as the main window's does.
class Window : public QMainWindow {
public:
    Window()
    {
        setStyleSheet(QStringLiteral("QWidget { background-color: #f0f0f0; } QSpinBox { background-color: #ffffff; }"));
    }
};

/// The dialog's sheet below that of the window.
class Dialog : public QDialog {
public:
    explicit Dialog(Window *window)
        : QDialog(window)
    {
        setStyleSheet(Scheduler::taskDialogStyleSheet());
        resize(400, 300);
    }
};

inline QString colorAt(const QImage &image, const QPoint &point)
{
    return image.pixelColor(point).name();
}

/// The widget as it shows on its window, with what lies behind it.
inline QImage shownImage(QWidget *widget)
{
    QWidget *window = widget->window();
    window->show();
    return window->grab(QRect(widget->mapTo(window, QPoint()), widget->size())).toImage();
}

} // namespace Dressed
