#include "logcapture.h"
#include "resources.h"
#include "tasktypes.h"
#include "testmain.h"
#include "windowfixture.h"

#include <QApplication>
#include <QComboBox>
#include <QFile>
#include <QTableWidget>

using namespace Scheduler;
using namespace TestSupport;
using namespace Qt::StringLiterals;

class TestLanguage : public QObject {
    Q_OBJECT

private slots:
    void aShortcutSelectsACatalogue_data();
    void aShortcutSelectsACatalogue();
    void theStepsAreLogged_data();
    void theStepsAreLogged();
    void germanReplacesTheTexts();
    void aLanguageWithoutACatalogueIsEnglish();
    void aMissingTranslationIsEnglish();
    void anEarlierLanguageLeavesNoTrace();
    void arabicMirrorsTheWholeFrame();
};

void TestLanguage::aShortcutSelectsACatalogue_data()
{
    QTest::addColumn<QString>("code");
    const QList<std::pair<QString, QString>> codes{
        {u"en"_s, u"en"_s},    {u"ja"_s, u"ja"_s},       {u"ko"_s, u"ko"_s},      {u"de"_s, u"de"_s},
        {u"fr"_s, u"fr"_s},    {u"es"_s, u"es"_s},       {u"it"_s, u"it"_s},      {u"nl"_s, u"nl"_s},
        {u"ru"_s, u"ru"_s},    {u"pl"_s, u"pl"_s},       {u"ar"_s, u"ar"_s},      {u"cn"_s, u"zh_CN"_s},
        {u"zh"_s, u"zh_TW"_s}, {u"zh_TW"_s, u"zh_TW"_s}, {u"pt"_s, u"pt_BR"_s},   {u"zh_CN"_s, u"en"_s},
        {u"pt_BR"_s, u"en"_s}, {QString(), u"en"_s},     {u"AR"_s, u"en"_s},      {u"De"_s, u"en"_s},
        {u"de_DE"_s, u"en"_s}, {u" de"_s, u"en"_s},      {u"klingon"_s, u"en"_s},
    };
    for (const auto &[shortcut, code] : codes)
        QTest::addRow("'%s'", qPrintable(shortcut)) << code;
}

void TestLanguage::aShortcutSelectsACatalogue()
{
    const QString row = QString::fromLatin1(QTest::currentDataTag());
    QTEST(MCsMainWindow::mapLanguageShortcut(row.sliced(1, row.size() - 2)), "code");
}

void TestLanguage::theStepsAreLogged_data()
{
    QTest::addColumn<QString>("shortcut");
    QTest::addColumn<QStringList>("lines");
    const auto lines = [](const QString &shortcut, const QString &code, bool loaded, const QString &direction) {
        return QStringList{u"INFO Language shortcut: "_s + shortcut, u"INFO Mapped Qt language: "_s + code,
                           (loaded ? u"INFO Loaded translation: :/i18n/Brelvix_%1.qm"_s
                                   : u"WARN Failed to load translation: :/i18n/Brelvix_%1.qm"_s)
                               .arg(code),
                           u"INFO LayoutDirection set to "_s + direction};
    };
    const QString leftToRight = u"LeftToRight"_s;
    const auto shipped = [](const QString &code) {
        registerResources();
        return QFile::exists(u":/i18n/Brelvix_%1.qm"_s.arg(code));
    };
    QTest::newRow("en, an empty catalogue") << u"en"_s << lines(u"en"_s, u"en"_s, true, leftToRight);
    QTest::newRow("de") << u"de"_s << lines(u"de"_s, u"de"_s, true, leftToRight);
    QTest::newRow("ko, without a catalogue") << u"ko"_s << lines(u"ko"_s, u"ko"_s, false, leftToRight);
    QTest::newRow("unknown") << u"xx"_s << lines(u"xx"_s, u"en"_s, true, leftToRight);
    QTest::newRow("empty") << QString() << lines(QString(), u"en"_s, true, leftToRight);
    QTest::newRow("ar") << u"ar"_s << lines(u"ar"_s, u"ar"_s, shipped(u"ar"_s), u"RightToLeft"_s);
    QTest::newRow("AR") << u"AR"_s << lines(u"AR"_s, u"en"_s, true, leftToRight);
}

void TestLanguage::theStepsAreLogged()
{
    QFETCH(QString, shortcut);
    WindowFixture fixture;
    const LogCapture log;
    fixture.open(u"task_type.test"_s, shortcut);
    QTEST(log.lines(u"MainWindow"_s), "lines");
}

void TestLanguage::germanReplacesTheTexts()
{
    WindowFixture fixture;
    fixture.open(u"task_type.screen_record"_s, u"de"_s);
    QCOMPARE(fixture.widget<QLabel>("logLabel")->text(), u"Aktivitätsprotokoll:"_s); // of the form
    QCOMPARE(fixture.status(), u"Getrennt"_s);                                       // of the code
    QCOMPARE(taskTypeDisplayName(u"task_type.screen_record"_s), u"Bildschirmaufnahme"_s);
    QCOMPARE(fixture.widget<QComboBox>("typeFilterCombo")->currentText(), u"All Types"_s);
    QCOMPARE(fixture.window->windowTitle(), u"Orvel Task Scheduler - Foo"_s);
    QCOMPARE(QApplication::layoutDirection(), Qt::LeftToRight);
}

void TestLanguage::aLanguageWithoutACatalogueIsEnglish()
{
    WindowFixture fixture;
    fixture.open(u"task_type.test"_s, u"nl"_s);
    QCOMPARE(fixture.widget<QLabel>("logLabel")->text(), u"Activity Log:"_s);
    QCOMPARE(fixture.status(), u"Disconnected"_s);
}

void TestLanguage::aMissingTranslationIsEnglish()
{
    WindowFixture fixture;
    fixture.open(u"task_type.test"_s, u"de"_s);
    QCOMPARE(MCsMainWindow::tr("A text of no catalogue"), u"A text of no catalogue"_s);
    QCOMPARE(fixture.status(), u"Getrennt"_s);
}

void TestLanguage::anEarlierLanguageLeavesNoTrace()
{
    WindowFixture fixture;
    fixture.open(u"task_type.test"_s, u"de"_s);
    fixture.open(u"task_type.test"_s, u"en"_s);
    QCOMPARE(fixture.widget<QLabel>("logLabel")->text(), u"Activity Log:"_s);
}

void TestLanguage::arabicMirrorsTheWholeFrame()
{
    WindowFixture fixture;
    fixture.open(u"task_type.test"_s, u"ar"_s);
    QCOMPARE(QApplication::layoutDirection(), Qt::RightToLeft);
    const auto *tree = fixture.widget<QWidget>("leftPanel");
    const auto *table = fixture.widget<QWidget>("rightPanel");
    QTRY_VERIFY(tree->x() > table->x());
    const QList<QWidget *> widgets = fixture.window->findChildren<QWidget *>();
    for (const QWidget *widget : widgets)
        if (!widget->objectName().isEmpty() && !widget->objectName().startsWith(u"qt_"_s)) // of Qt's own making
            QVERIFY2(!widget->testAttribute(Qt::WA_SetLayoutDirection), qPrintable(describe(widget)));
    fixture.open(u"task_type.test"_s, u"en"_s);
    QCOMPARE(QApplication::layoutDirection(), Qt::LeftToRight);
}

ORVEL_TEST_MAIN(QApplication, TestLanguage)
#include "tst_language.moc"
