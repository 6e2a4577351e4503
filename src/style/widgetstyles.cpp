#include "widgetstyles.h"

#include "stylesheets.h"
#include "windows10likecheckboxstyle.h"
#include "windows10likespinboxstyle.h"

#include <QAbstractScrollArea>
#include <QAbstractSpinBox>
#include <QCheckBox>
#include <QLabel>
#include <QRadioButton>
#include <QScrollBar>
#include <QString>

using namespace Qt::StringLiterals;

namespace Scheduler {

namespace {

constexpr const char *spinBoxMarker = "win10SpinBoxStyleApplied";
constexpr const char *checkBoxMarker = "win10CheckBoxStyleApplied";
constexpr const char *scrollBarMarker = "win11ScrollBarStyleApplied";

/// A widget doesn't own the style that is set on it, so the style becomes its child.
template <typename Style> void setOwnStyle(QWidget *widget)
{
    auto *style = new Style;
    style->setParent(widget);
    widget->setStyle(style);
}

void styleScrollBar(QScrollBar *bar)
{
    if (bar == nullptr || bar->property(scrollBarMarker).toBool())
        return;
    bar->setStyleSheet(scrollBarStyleSheet());
    bar->setProperty(scrollBarMarker, true);
}

} // namespace

void applySpinBoxStyle(QWidget *root)
{
    if (root == nullptr)
        return;
    const QList<QAbstractSpinBox *> boxes = root->findChildren<QAbstractSpinBox *>();
    for (QAbstractSpinBox *box : boxes) {
        if (box->property(spinBoxMarker).toBool())
            continue;
        box->setButtonSymbols(QAbstractSpinBox::UpDownArrows);
        setOwnStyle<Windows10LikeSpinBoxStyle>(box);
        box->setProperty(spinBoxMarker, true);
    }
}

void applyCheckBoxStyle(QWidget *root)
{
    if (root == nullptr)
        return;
    const QList<QCheckBox *> boxes = root->findChildren<QCheckBox *>();
    for (QCheckBox *box : boxes) {
        if (box->property(checkBoxMarker).toBool())
            continue;
        box->setAttribute(Qt::WA_Hover);
        setOwnStyle<Windows10LikeCheckBoxStyle>(box);
        box->setProperty(checkBoxMarker, true);
    }
}

void applyScrollBarStyle(QAbstractScrollArea *area)
{
    if (area == nullptr)
        return;
    styleScrollBar(area->verticalScrollBar());
    styleScrollBar(area->horizontalScrollBar());
}

void applyModeCardStyle(QRadioButton *radio)
{
    if (radio == nullptr)
        return;
    // The class comes first: setting the sheet is what makes the selectors look at it.
    radio->setProperty("class", u"modeCard"_s);
    radio->setStyleSheet(modeRadioStyleSheet());
}

void applySectionLabelStyle(QLabel *label)
{
    if (label != nullptr)
        label->setStyleSheet(sectionLabelStyleSheet());
}

} // namespace Scheduler
