#include "logcapture.h"
#include "mcstaskdialog.h"
#include "tasktypes.h"
#include "testmain.h"
#include "windowfixture.h"

#include <QApplication>
#include <QComboBox>
#include <QDateTimeEdit>
#include <QLineEdit>
#include <QTableWidget>
#include <QTranslator>

using namespace Scheduler;
using namespace TestSupport;
using namespace Qt::StringLiterals;

class TestLanguage : public QObject {
    Q_OBJECT

private slots:
    void aShortcutSelectsACatalogue_data();
    void aShortcutSelectsACatalogue();
    void aWindowOpensInTheLanguageOfItsShortcut_data();
    void aWindowOpensInTheLanguageOfItsShortcut();
    void germanReplacesTheTexts();
    void italianHasItsOwnFileNamePattern();
    void datesAndTimesAreNotMirrored();
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

void TestLanguage::aWindowOpensInTheLanguageOfItsShortcut_data()
{
    QTest::addColumn<QString>("code");
    QTest::addColumn<bool>("shipped");
    const auto row = [](const char *shortcut, const char *code, bool shipped = true) {
        QTest::addRow("'%s'", shortcut) << QString::fromLatin1(code) << shipped;
    };
    row("en", "en");
    row("ja", "ja");
    row("ko", "ko", false);
    row("de", "de");
    row("fr", "fr");
    row("es", "es");
    row("it", "it");
    row("nl", "nl", false);
    row("ru", "ru", false);
    row("pl", "pl", false);
    row("ar", "ar");
    row("cn", "zh_CN");
    row("zh", "zh_TW");
    row("zh_TW", "zh_TW");
    row("pt", "pt_BR");
    row("zh_CN", "en");
    row("pt_BR", "en");
    row("AR", "en");
    row("xx", "en");
    row("", "en");
}

void TestLanguage::aWindowOpensInTheLanguageOfItsShortcut()
{
    QFETCH(const QString, code);
    QFETCH(const bool, shipped);
    const QString row = QString::fromLatin1(QTest::currentDataTag());
    const QString shortcut = row.sliced(1, row.size() - 2);
    const QString path = u":/i18n/Brelvix_%1.qm"_s.arg(code);
    const bool rightToLeft = code == "ar"_L1;

    WindowFixture fixture;
    const LogCapture log;
    fixture.open(u"task_type.test"_s, shortcut);
    QCOMPARE(log.lines(u"MainWindow"_s),
             QStringList({u"INFO Language shortcut: "_s + shortcut, u"INFO Mapped Qt language: "_s + code,
                          (shipped ? u"INFO Loaded translation: "_s : u"WARN Failed to load translation: "_s) + path,
                          u"INFO LayoutDirection set to "_s + (rightToLeft ? "RightToLeft"_L1 : "LeftToRight"_L1)}));
    QCOMPARE(QApplication::layoutDirection(), rightToLeft ? Qt::RightToLeft : Qt::LeftToRight);

    QTranslator catalogue;
    QCOMPARE(catalogue.load(path), shipped);
    const QString translated = catalogue.translate("MCsMainWindow", "Activity Log:");
    const bool english = code == "en"_L1 || !shipped;
    QCOMPARE(translated.isEmpty(), english);
    QCOMPARE(fixture.widget<QLabel>("logLabel")->text(), english ? u"Activity Log:"_s : translated);
}

void TestLanguage::germanReplacesTheTexts()
{
    WindowFixture fixture;
    fixture.open(u"task_type.screen_record"_s, u"de"_s);
    QCOMPARE(fixture.widget<QLabel>("logLabel")->text(), u"Aktivitätsprotokoll:"_s); // of the form
    QCOMPARE(fixture.status(), u"Getrennt"_s);                                       // of the code
    QCOMPARE(taskTypeDisplayName(u"task_type.screen_record"_s), u"Screenrecorder"_s);
    QCOMPARE(fixture.widget<QComboBox>("typeFilterCombo")->currentText(), u"All Types"_s);
    QCOMPARE(fixture.window->windowTitle(), u"Orvel Task Scheduler - Foo"_s);
    QCOMPARE(QApplication::layoutDirection(), Qt::LeftToRight);
}

void TestLanguage::italianHasItsOwnFileNamePattern()
{
    WindowFixture fixture;
    fixture.open(u"task_type.test"_s, u"it"_s);
    const MCsTaskDialog dialog(nullptr, {}, {}, {}, {}, {}, nullptr);
    QCOMPARE(dialog.findChild<QLineEdit *>("customFileNamePatternEdit"_L1)->text(),
             u"[YYYY-MM-DD][hh-mm-ss]_[NomeAttività]"_s);
}

// Mirrored, Qt turns the order of the fields round, and a time reads as seconds, minutes, hours.
void TestLanguage::datesAndTimesAreNotMirrored()
{
    WindowFixture fixture;
    fixture.open(u"task_type.test"_s, u"ar"_s);
    const MCsTaskDialog dialog(nullptr, {}, {}, {}, {}, {}, nullptr);
    QCOMPARE(dialog.layoutDirection(), Qt::RightToLeft);
    const auto *dateTime = dialog.findChild<QDateTimeEdit *>("specifiedDateTimeEdit"_L1);
    QCOMPARE(dateTime->text(), dateTime->dateTime().toString(u"yyyy-MM-dd HH:mm:ss"_s));
    QCOMPARE(dialog.findChild<QTimeEdit *>("dailyTimeEdit"_L1)->text(), u"09:00:00"_s);
    fixture.open(u"task_type.test"_s, u"en"_s);
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
