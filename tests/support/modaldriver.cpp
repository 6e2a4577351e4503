#include "modaldriver.h"

#include "widgetaccess.h"

#include <QAbstractButton>
#include <QApplication>
#include <QMetaEnum>
#include <QProgressDialog>
#include <QTest>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace TestSupport {

namespace {

constexpr int pollIntervalMs = 2;

QString name(QMessageBox::Icon icon)
{
    return QString::fromLatin1(QMetaEnum::fromType<QMessageBox::Icon>().valueToKey(icon));
}

QString names(QMessageBox::StandardButtons buttons)
{
    const auto buttonEnum = QMetaEnum::fromType<QMessageBox::StandardButtons>();
    QStringList keys;
    for (uint bit = QMessageBox::FirstButton; bit <= QMessageBox::LastButton; bit <<= 1) {
        if (buttons.testFlag(QMessageBox::StandardButton(bit)))
            keys.append(QString::fromLatin1(buttonEnum.valueToKey(int(bit))));
    }
    return keys.join(u'|');
}

QString boxText(QMessageBox::Icon icon, const QString &title, const QString &text, QMessageBox::StandardButtons buttons)
{
    return u"QMessageBox (%1) titled \"%2\", text \"%3\", buttons %4"_s.arg(name(icon), title, text, names(buttons));
}

QString description(const QDialog *dialog)
{
    if (const auto *box = qobject_cast<const QMessageBox *>(dialog))
        return boxText(box->icon(), box->windowTitle(), box->text(), box->standardButtons());
    return describe(dialog);
}

ModalDriver::Seen recordOf(const QDialog *dialog)
{
    ModalDriver::Seen seen;
    seen.className = QString::fromLatin1(dialog->metaObject()->className());
    seen.title = dialog->windowTitle();
    if (const auto *box = qobject_cast<const QMessageBox *>(dialog)) {
        seen.text = box->text();
        seen.informativeText = box->informativeText();
        seen.icon = box->icon();
        seen.buttons = box->standardButtons();
        seen.textFormat = box->textFormat();
    } else if (const auto *progress = qobject_cast<const QProgressDialog *>(dialog)) {
        seen.text = progress->labelText();
    }
    return seen;
}

bool isProgress(const QDialog *dialog)
{
    return qobject_cast<const QProgressDialog *>(dialog) != nullptr;
}

} // namespace

QStringList openWindows()
{
    QStringList windows;
    const QWidgetList all = QApplication::topLevelWidgets();
    for (const QWidget *widget : all) {
        if (widget->isVisible())
            windows.append(describe(widget));
    }
    windows.sort();
    return windows;
}

ModalDriver::ModalDriver(const std::source_location &where)
    : m_origin(where)
{
    const QWidgetList all = QApplication::topLevelWidgets();
    for (QWidget *widget : all) {
        if (auto *dialog = qobject_cast<QDialog *>(widget); dialog != nullptr && dialog->isVisible())
            m_foreign.append(dialog);
    }
    QObject::connect(&m_timer, &QTimer::timeout, &m_timer, [this] { poll(); });
    m_timer.start(pollIntervalMs);
}

ModalDriver::~ModalDriver()
{
    if (!m_asked && !QTest::currentTestFailed())
        verify(m_origin);
}

void ModalDriver::expectBox(QMessageBox::Icon icon, const QString &title, const QString &text,
                            QMessageBox::StandardButtons buttons, QMessageBox::StandardButton press)
{
    const auto fits = [=](QDialog *dialog) {
        const auto *box = qobject_cast<QMessageBox *>(dialog);
        return box != nullptr && box->icon() == icon && box->windowTitle() == title && box->text() == text &&
               box->standardButtons() == buttons;
    };
    const auto drive = [this, press](QDialog *dialog) { this->press(qobject_cast<QMessageBox *>(dialog), press); };
    m_expected.append({boxText(icon, title, text, buttons), fits, drive});
}

bool ModalDriver::finished()
{
    m_asked = true;
    return allProblems().isEmpty();
}

QByteArray ModalDriver::problems()
{
    m_asked = true;
    return allProblems().join(u'\n').toUtf8();
}

bool ModalDriver::verify(const std::source_location &where)
{
    if (finished())
        return true;
    fail(allProblems().join(u'\n'), where);
    return false;
}

QList<ModalDriver::Seen> ModalDriver::seen() const
{
    return m_seen;
}

void ModalDriver::poll()
{
    auto *dialog = qobject_cast<QDialog *>(QApplication::activeModalWidget());
    if (dialog == nullptr || isKnown(dialog) || (isProgress(dialog) && !fitsNext(dialog)))
        return;
    m_known.append(dialog);
    // The same dialog may be run again later.
    QObject::connect(dialog, &QDialog::finished, &m_timer, [this, dialog] { m_known.removeAll(dialog); });
    // A timer does not fire while its own slot runs, and the action may bring up the next box.
    QMetaObject::invokeMethod(
        &m_timer,
        [this, guard = QPointer<QDialog>(dialog)] {
            if (guard == nullptr || !guard->isVisible())
                return;
            // What has come over it meanwhile is met first; a user could not press its buttons, either.
            if (QApplication::activeModalWidget() == guard)
                handle(guard);
            else
                m_known.removeAll(guard);
        },
        Qt::QueuedConnection);
}

void ModalDriver::handle(QDialog *dialog)
{
    const QPointer<QDialog> guard(dialog);
    m_seen.append(recordOf(dialog));
    const QString met = description(dialog);
    if (!fitsNext(dialog)) {
        m_problems.append(u"unexpected: %1; expected next: %2"_s.arg(
            met, m_expected.isEmpty() ? u"nothing"_s : m_expected.first().description));
        dialog->done(QDialog::Rejected);
        return;
    }
    const Expectation expectation = m_expected.takeFirst();
    expectation.drive(dialog);
    // Nobody waits in a progress dialog, so that it may stay.
    if (guard == nullptr || !guard->isVisible() || isProgress(guard))
        return;
    m_problems.append(u"left open by its action: "_s + met);
    guard->done(QDialog::Rejected);
}

void ModalDriver::press(QMessageBox *box, QMessageBox::StandardButton button)
{
    QAbstractButton *const pressed = box->button(button);
    if (const QString problem = clickProblem(pressed); !problem.isEmpty())
        m_problems.append(u"%1: cannot press %2: %3"_s.arg(description(box), names(button), problem));
    else
        pressed->click();
}

bool ModalDriver::fitsNext(QDialog *dialog) const
{
    return !m_expected.isEmpty() && m_expected.first().fits(dialog);
}

bool ModalDriver::isKnown(const QDialog *dialog) const
{
    const auto isThis = [dialog](const QPointer<QDialog> &each) { return each == dialog; };
    return std::ranges::any_of(m_foreign, isThis) || std::ranges::any_of(m_known, isThis);
}

QStringList ModalDriver::allProblems() const
{
    QStringList all = m_problems;
    for (const Expectation &expectation : m_expected)
        all.append(u"never came: "_s + expectation.description);
    for (const QPointer<QDialog> &dialog : m_known) {
        if (dialog != nullptr && dialog->isVisible() && !isProgress(dialog))
            all.append(u"still open: "_s + description(dialog));
    }
    return all;
}

} // namespace TestSupport
