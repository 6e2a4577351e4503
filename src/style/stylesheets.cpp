#include "stylesheets.h"

using namespace Qt::StringLiterals;

namespace Scheduler {

// The sheet of the main window reaches into the dialog and makes everything in it grey, so what lies on a white card is
// transparent here: labels, check boxes, the plain panels. With spin boxes there is a second reason. Qt takes the bevel
// of their buttons from a background colour, and a transparent one leaves the buttons flat.
QString taskDialogStyleSheet()
{
    return uR"(
QDialog {
    background-color: #f4f6f8;
}
QScrollArea {
    border: none;
}
QScrollArea::corner {
    border: none;
    background: transparent;
}
QGroupBox {
    background-color: #ffffff;
    border: 1.5px solid #a8c8f0;
    border-radius: 8px;
    margin-top: 0px;
    padding: 12px 10px 10px 10px;
}
QGroupBox::title {
    font-size: 0px;
    color: transparent;
}
QLabel {
    color: #444444;
    background: transparent;
}
QCheckBox {
    background: transparent;
}
QGroupBox > .QWidget {
    background: transparent;
}
QAbstractSpinBox {
    background-color: transparent;
    border: 1px solid #cfd6dd;
    border-radius: 4px;
    padding: 3px 6px;
}
QAbstractSpinBox:focus {
    border-color: #4a90e2;
}
QLineEdit:disabled {
    background-color: #f0f0f0;
    color: #888888;
}
QRadioButton.modeCard {
    background-color: #f8f9fb;
    border: 1px solid #d8dde3;
    border-radius: 6px;
    padding: 6px 12px;
    padding-left: 8px;
    font-size: 14px;
    spacing: 6px;
    min-height: 28px;
}
QRadioButton.modeCard:hover {
    background-color: #eaf2ff;
    border-color: #4a90e2;
}
QRadioButton.modeCard:checked {
    background-color: #dbe9ff;
    border-color: #4a90e2;
    font-weight: bold;
    color: #2a6bcf;
}
QListWidget#navList {
    background-color: #ffffff;
    border: 1.5px solid #a8c8f0;
    border-radius: 8px;
    font-size: 14px;
    outline: none;
}
QListWidget#navList::item {
    padding: 8px 12px;
    border-bottom: 1px solid #eef0f3;
}
QListWidget#navList::item:hover {
    background-color: #eaf2ff;
}
QListWidget#navList::item:selected {
    background-color: #4a90e2;
    color: #ffffff;
    font-weight: bold;
}
QWidget#customOutputWidget {
    background-color: #f9fafb;
    border: 1px dashed #cfd6dd;
    border-radius: 4px;
    padding: 6px;
}
QComboBox {
    background-color: #ffffff;
    border: 1px solid #cfd6dd;
    border-radius: 4px;
    padding: 3px 24px 3px 6px;
    min-height: 22px;
}
QComboBox:focus {
    border-color: #4a90e2;
}
QComboBox::drop-down {
    subcontrol-origin: padding;
    subcontrol-position: center right;
    width: 22px;
    border: none;
    background: transparent;
}
QComboBox::down-arrow {
    image: none;
    border: none;
    width: 0px;
    height: 0px;
}
QComboBox QAbstractItemView {
    background-color: #ffffff;
    border: 1px solid #cfd6dd;
    selection-background-color: #4a90e2;
    selection-color: #ffffff;
}
)"_s;
}

QString modeRadioStyleSheet()
{
    return uR"(
QRadioButton {
    spacing: 6px;
}
QRadioButton::indicator {
    width: 16px;
    height: 16px;
    margin-right: 4px;
}
QRadioButton::indicator:unchecked {
    border: 1px solid #8f99a3;
    border-radius: 8px;
    background-color: #ffffff;
}
QRadioButton::indicator:checked {
    border: 1px solid #4a90e2;
    border-radius: 8px;
    background: qradialgradient(cx:0.5, cy:0.5, radius:0.5, fx:0.5, fy:0.5,
        stop:0.00 #4a90e2, stop:0.35 #4a90e2, stop:0.36 #ffffff, stop:1.00 #ffffff);
}
QRadioButton::indicator:unchecked:disabled {
    border: 1px solid #c7ccd3;
    border-radius: 8px;
    background-color: #f3f4f6;
}
QRadioButton::indicator:checked:disabled {
    border: 1px solid #b7c8df;
    border-radius: 8px;
    background: qradialgradient(cx:0.5, cy:0.5, radius:0.5, fx:0.5, fy:0.5,
        stop:0.00 #9db7df, stop:0.35 #9db7df, stop:0.36 #f3f4f6, stop:1.00 #f3f4f6);
}
)"_s;
}

QString sectionLabelStyleSheet()
{
    return u"font-size: 14px;font-weight: bold;color: #2a6bcf;padding: 0px;padding-bottom: 15px;"
           "background: transparent;"_s;
}

QString formHeadingStyleSheet()
{
    return u"font-size: 14px;font-weight: bold;color: #FFB878; background-color: #ffffff;padding: 0px;"
           "padding-bottom: 15px;"_s;
}

QString formCardStyleSheet()
{
    return u"QGroupBox {  background-color: #ffffff;  border: 1.5px solid #a8c8f0;  border-radius: 8px;"
           "  margin-top: 0px;  padding: 12px 10px 10px 10px;}"
           "QGroupBox::title {  font-size: 0px;  color: transparent;}"_s;
}

QString switchStyleSheet()
{
    return uR"(
QCheckBox {
    spacing: 8px;
    font-size: 12px;
}
QCheckBox::indicator {
    width: 42px;
    height: 22px;
    image: url(:/images/switch_off.png);
}
QCheckBox::indicator:checked {
    image: url(:/images/switch_on.png);
}
)"_s;
}

QString scrollBarStyleSheet()
{
    return uR"(
QScrollBar:vertical {
    background: transparent;
    width: 14px;
    margin: 2px 2px 2px 0px;
}
QScrollBar::handle:vertical {
    min-height: 48px;
    border-radius: 6px;
    background: #b7bec7;
}
QScrollBar:horizontal {
    background: transparent;
    height: 14px;
    margin: 0px 2px 2px 2px;
}
QScrollBar::handle:horizontal {
    min-width: 48px;
    border-radius: 6px;
    background: #b7bec7;
}
QScrollBar::handle:hover {
    background: #98a2ad;
}
QScrollBar::handle:pressed {
    background: #7d8792;
}
QScrollBar::add-line:vertical, QScrollBar::sub-line:vertical {
    height: 0px;
    border: none;
    background: transparent;
}
QScrollBar::add-line:horizontal, QScrollBar::sub-line:horizontal {
    width: 0px;
    border: none;
    background: transparent;
}
QScrollBar::add-page, QScrollBar::sub-page {
    background: transparent;
}
)"_s;
}

} // namespace Scheduler
