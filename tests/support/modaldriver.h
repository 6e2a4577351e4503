#pragma once

#include <QByteArray>
#include <QDialog>
#include <QList>
#include <QMessageBox>
#include <QPointer>
#include <QString>
#include <QStringList>
#include <QTimer>

#include <functional>
#include <source_location>

namespace TestSupport {

/// Class and title of every window that is open, the main window included. Empty at the end of a test that has closed
/// and destroyed what it opened.
[[nodiscard]] QStringList openWindows();

/// Drives modal boxes and dialogs from inside, after a script: the code under test blocks in exec(), while the driver
/// waits for the next active modal window, compares it with the next expectation, and acts on it.
///
///     ModalDriver driver;
///     driver.expectBox(QMessageBox::Question, u"Confirm"_s, u"Really?"_s, QMessageBox::Yes | QMessageBox::No,
///                      QMessageBox::Yes);
///     click(&window, "deleteButton");
///     QVERIFY2(driver.finished(), driver.problems());
///
/// What comes and is not expected next is recorded as a problem and rejected, so that no test hangs on it. A progress
/// dialog is left alone unless the next expectation names it, and so are windows that were open before the driver was
/// made. A dialog whose action returns while it is still open is a problem, too, and is rejected; its expectation comes
/// before those of the boxes that its action brings up. A driver with problems that nobody asked about fails the test
/// when it goes.
class ModalDriver {
public:
    /// A modal window as it stood when it was met.
    struct Seen {
        QString className;
        QString title;
        QString text; ///< of a message box or a progress dialog
        QString informativeText;
        QMessageBox::Icon icon = QMessageBox::NoIcon;
        QMessageBox::StandardButtons buttons = QMessageBox::NoButton;
        Qt::TextFormat textFormat = Qt::AutoText;
    };

    explicit ModalDriver(const std::source_location &where = std::source_location::current());
    ~ModalDriver();
    Q_DISABLE_COPY_MOVE(ModalDriver)

    /// A message box with exactly this, answered with the button.
    void expectBox(QMessageBox::Icon icon, const QString &title, const QString &text,
                   QMessageBox::StandardButtons buttons = QMessageBox::Ok,
                   QMessageBox::StandardButton press = QMessageBox::Ok);

    /// A dialog of this class or a class derived from it. The action must see to it that the dialog closes.
    template <typename T> void expectDialog(const QString &title, const std::function<void(T *)> &action);

    /// True when everything expected has come, nothing else has, and none of it is open any more.
    [[nodiscard]] bool finished();
    /// One line per problem; empty when finished.
    [[nodiscard]] QByteArray problems();
    /// finished(), with a failure of the test where it is not so.
    bool verify(const std::source_location &where = std::source_location::current());

    /// Everything met so far, in order, the unexpected included.
    [[nodiscard]] QList<Seen> seen() const;

private:
    struct Expectation {
        QString description;
        std::function<bool(QDialog *)> fits;
        std::function<void(QDialog *)> drive;
    };

    void poll();
    void handle(QDialog *dialog);
    void press(QMessageBox *box, QMessageBox::StandardButton button);
    [[nodiscard]] bool fitsNext(QDialog *dialog) const;
    [[nodiscard]] bool isKnown(const QDialog *dialog) const;
    [[nodiscard]] QStringList allProblems() const;

    std::source_location m_origin;
    QTimer m_timer;
    QList<Expectation> m_expected;
    QList<QPointer<QDialog>> m_foreign; ///< open before the driver was made
    QList<QPointer<QDialog>> m_known;   ///< met already
    QList<Seen> m_seen;
    QStringList m_problems;
    bool m_asked = false;
};

template <typename T> void ModalDriver::expectDialog(const QString &title, const std::function<void(T *)> &action)
{
    using namespace Qt::StringLiterals;
    m_expected.append(
        {u"%1 titled \"%2\""_s.arg(QString::fromLatin1(T::staticMetaObject.className()), title),
         [title](QDialog *dialog) { return qobject_cast<T *>(dialog) != nullptr && dialog->windowTitle() == title; },
         [action](QDialog *dialog) { action(qobject_cast<T *>(dialog)); }});
}

} // namespace TestSupport
