#include "platform.h"
#include "taskdialogfixture.h"
#include "testmain.h"

#include <QFileDialog>
#include <QLineEdit>
#include <QPushButton>
#include <QTemporaryDir>

#include <functional>

using namespace Qt::StringLiterals;
using namespace Scheduler;
using namespace TestSupport;

namespace {

/// A button that opens a file dialog, and what it is expected to open.
struct Browse {
    QString edit;
    QString radio; ///< to be chosen first, so that the button can be pressed
    QString title;
    bool isFolder = false;
};

void accept(QFileDialog *dialog, const QString &path)
{
    require<QLineEdit>(dialog, "fileNameEdit")->setText(path);
    click(require<QDialogButtonBox>(dialog, "buttonBox")->button(QDialogButtonBox::Open));
}

} // namespace

Q_DECLARE_METATYPE(Browse)

/// The buttons that open other dialogs.
class TestTaskDialogBrowse : public TaskDialogFixture {
    Q_OBJECT

private slots:
    void dialogAsksForTheRightThing_data();
    void dialogAsksForTheRightThing();
    void dialogStartsInTheCurrentFolder_data();
    void dialogStartsInTheCurrentFolder();
    void chosenPathGoesIntoItsEdit_data();
    void chosenPathGoesIntoItsEdit();
    void cancelledDialogChangesNothing_data();
    void cancelledDialogChangesNothing();
    void taskDialogMayGoUnderIt_data();
    void taskDialogMayGoUnderIt();
    void linkToAFolderStaysALink_data();
    void linkToAFolderStaysALink();
    void helpExplainsTheFileNamePattern();

private:
    void addButtons() const;
    /// Opens the task dialog and presses the button of this test's row.
    /// Its edits hold this text then.
    void browse(const Browse &expected, const std::function<void(QFileDialog *)> &action,
                const QString &before = u"before"_s);
    /// The texts of the four edits that have a button, in a fixed order.
    [[nodiscard]] QStringList paths() const;

    QTemporaryDir m_files;
    const QStringList m_edits{u"runProgramEdit"_s, u"monitorProgramEdit"_s, u"monitorFolderPathEdit"_s,
                              u"customFolderEdit"_s};
};

void TestTaskDialogBrowse::addButtons() const
{
    QTest::addColumn<Browse>("expected");
    QTest::newRow("browseRunProgramBtn") << Browse{u"runProgramEdit"_s, {}, u"Select Program"_s};
    QTest::newRow("browseMonitorProgramBtn")
        << Browse{u"monitorProgramEdit"_s, u"startModeMonitorApp"_s, u"Select Program to Monitor"_s};
    QTest::newRow("browseMonitorFolderBtn")
        << Browse{u"monitorFolderPathEdit"_s, u"startModeMonitorFolder"_s, u"Select Folder to Monitor"_s, true};
    QTest::newRow("browseOutputBtn") << Browse{u"customFolderEdit"_s, u"useCustomOutputRadio"_s,
                                               u"Select Output Folder"_s, true};
}

void TestTaskDialogBrowse::browse(const Browse &expected, const std::function<void(QFileDialog *)> &action,
                                  const QString &before)
{
    openForCreate();
    if (!expected.radio.isEmpty())
        choose(qPrintable(expected.radio));
    for (const QString &edit : m_edits)
        widget<QLineEdit>(qPrintable(edit))->setText(before);
    ModalDriver driver;
    driver.expectDialog<QFileDialog>(expected.title, action);
    click(m_dialog.get(), QTest::currentDataTag());
    QVERIFY2(driver.finished(), driver.problems());
}

QStringList TestTaskDialogBrowse::paths() const
{
    QStringList texts;
    for (const QString &edit : m_edits)
        texts.append(widget<QLineEdit>(qPrintable(edit))->text());
    return texts;
}

void TestTaskDialogBrowse::dialogAsksForTheRightThing_data()
{
    addButtons();
}

void TestTaskDialogBrowse::dialogAsksForTheRightThing()
{
    QFETCH(const Browse, expected);
    QStringList filters;
    QFileDialog::FileMode fileMode = QFileDialog::AnyFile;
    QFileDialog::AcceptMode acceptMode = QFileDialog::AcceptSave;
    QFileDialog::Options options;
    browse(expected, [&](QFileDialog *dialog) {
        filters = dialog->nameFilters();
        fileMode = dialog->fileMode();
        acceptMode = dialog->acceptMode();
        options = dialog->options();
        dialog->reject();
    });
    QCOMPARE(acceptMode, QFileDialog::AcceptOpen);
    QCOMPARE(fileMode, expected.isFolder ? QFileDialog::Directory : QFileDialog::ExistingFile);
    QCOMPARE(options.testFlag(QFileDialog::ShowDirsOnly), expected.isFolder);
    QCOMPARE(options.testFlag(QFileDialog::DontResolveSymlinks), expected.isFolder);
    if (!expected.isFolder)
        QCOMPARE(filters, (QStringList{u"Executable Files (*.exe)"_s, u"All Files (*.*)"_s}));
}

void TestTaskDialogBrowse::dialogStartsInTheCurrentFolder_data()
{
    addButtons();
}

void TestTaskDialogBrowse::dialogStartsInTheCurrentFolder()
{
    QFETCH(const Browse, expected);
    const QString elsewhere = m_files.filePath(u"elsewhere"_s);
    QVERIFY(QDir().mkpath(elsewhere));
    QString folder;
    browse(
        expected,
        [&folder](QFileDialog *dialog) {
            folder = dialog->directory().absolutePath();
            dialog->reject();
        },
        elsewhere);
    QCOMPARE(folder, QDir::currentPath());
    QCOMPARE(paths(), QStringList(m_edits.size(), elsewhere));
}

void TestTaskDialogBrowse::chosenPathGoesIntoItsEdit_data()
{
    addButtons();
}

void TestTaskDialogBrowse::chosenPathGoesIntoItsEdit()
{
    QFETCH(const Browse, expected);
    QString path = m_files.filePath(u"chosen"_s);
    if (expected.isFolder) {
        QVERIFY(QDir().mkpath(path));
    } else {
        path += ".exe"_L1;
        QFile file(path);
        QVERIFY(file.open(QIODevice::WriteOnly));
    }
    browse(expected, [path](QFileDialog *dialog) { accept(dialog, path); });
    QStringList texts{u"before"_s, u"before"_s, u"before"_s, u"before"_s};
    texts[m_edits.indexOf(expected.edit)] = path;
    QCOMPARE(paths(), texts);
}

void TestTaskDialogBrowse::cancelledDialogChangesNothing_data()
{
    addButtons();
}

void TestTaskDialogBrowse::cancelledDialogChangesNothing()
{
    QFETCH(const Browse, expected);
    browse(expected, [this](QFileDialog *dialog) {
        require<QLineEdit>(dialog, "fileNameEdit")->setText(m_files.path());
        click(require<QDialogButtonBox>(dialog, "buttonBox")->button(QDialogButtonBox::Cancel));
    });
    QCOMPARE(paths(), (QStringList{u"before"_s, u"before"_s, u"before"_s, u"before"_s}));
}

void TestTaskDialogBrowse::taskDialogMayGoUnderIt_data()
{
    addButtons();
}

void TestTaskDialogBrowse::taskDialogMayGoUnderIt()
{
    QFETCH(const Browse, expected);
    openForCreate();
    if (!expected.radio.isEmpty())
        choose(qPrintable(expected.radio));
    ModalDriver driver;
    driver.expectDialog<QFileDialog>(expected.title, [this](QFileDialog *) { m_dialog.reset(); });
    widget<QPushButton>(QTest::currentDataTag())->click();
    QVERIFY2(driver.finished(), driver.problems());
    QVERIFY(m_dialog == nullptr);
}

void TestTaskDialogBrowse::linkToAFolderStaysALink_data()
{
    QTest::addColumn<Browse>("expected");
    QTest::newRow("browseOutputBtn") << Browse{u"customFolderEdit"_s, u"useCustomOutputRadio"_s,
                                               u"Select Output Folder"_s, true};
}

void TestTaskDialogBrowse::linkToAFolderStaysALink()
{
    if (!linksAreFollowed)
        QSKIP("links made here are files of their own");
    QFETCH(const Browse, expected);
    const QString link = m_files.filePath(u"link"_s);
    QVERIFY(QDir().mkpath(m_files.filePath(u"target"_s)));
    QVERIFY(QFile::link(m_files.filePath(u"target"_s), link));
    browse(expected, [link](QFileDialog *dialog) { accept(dialog, link); });
    QCOMPARE(widget<QLineEdit>("customFolderEdit")->text(), link);
}

void TestTaskDialogBrowse::helpExplainsTheFileNamePattern()
{
    openForCreate();
    choose("useCustomOutputRadio");
    ModalDriver driver;
    driver.expectBox(QMessageBox::Information, u"File Name Pattern Help"_s,
                     u"Available format variables:\n\n[YYYY-MM-DD] - Date (e.g., 2024-03-15)\n"
                     "[hh-mm-ss] - Time (e.g., 14-30-45)\n[TaskName] - Task name\n"
                     "[Counter] - Auto-incrementing counter\n\n"
                     "Example: [YYYY-MM-DD][hh-mm-ss]_[TaskName]\nResult: 2024-03-15_14-30-45_MyTask.mp4"_s);
    click(m_dialog.get(), "fileNameHelpBtn");
    QVERIFY2(driver.finished(), driver.problems());
    QCOMPARE(driver.seen().first().textFormat, Qt::PlainText);
}

ORVEL_TEST_MAIN(QApplication, TestTaskDialogBrowse)
#include "tst_taskdialogbrowse.moc"
