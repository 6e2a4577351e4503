#include "formfields.h"
#include "taskdialogfixture.h"
#include "testmain.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QSpinBox>

using namespace Qt::StringLiterals;
using namespace Scheduler;
using namespace TestSupport;

namespace {

const QString screenType = u"task_type.screen_record"_s;

const char *const intField = R"({"key": "k", "type": "int", "min": 1, "max": 60, "defaultValue": "30"})";
const char *const doubleField = R"({"key": "k", "type": "double", "min": -5, "max": 5, "defaultValue": "1.5"})";
const char *const boolField = R"({"key": "k", "type": "bool", "defaultValue": "true"})";
const char *const selectField =
    R"({"key": "k", "type": "select", "options": ["MP3", "OGG", "WAV"], "defaultValue": "OGG"})";
const char *const textField = R"({"key": "k", "type": "text", "defaultValue": "definition"})";

QJsonObject storedValues(const QString &type = screenType)
{
    return MCsLastTaskDefaults().loadDefaults(type).value("dynamicParams"_L1).toObject();
}

/// As if a task with these parameters had been saved.
void remember(const char *values)
{
    const QJsonObject params{{u"dynamicParams"_s, FormFields::object(values)}};
    MCsLastTaskDefaults().saveDefaults(screenType, {{u"paramsJson"_s, params}});
}

} // namespace

/// Where the values of the parameter form come from: the definition, the host's parameter file, the task that was saved
/// last, the task that is edited.
class TestTaskDialogPrecedence : public TaskDialogFixture {
    Q_OBJECT

private slots:
    void precedenceOfTheSources_data();
    void precedenceOfTheSources();
    void eachKeyHasItsOwnSource();
    void savedValuesAreOfferedToTheNextTask();
    void editTakesNoLastValuesButWritesThem();
    void typesRememberApart();

private:
    /// What the form of the open dialog would save.
    [[nodiscard]] QJsonObject values() const;
};

QJsonObject TestTaskDialogPrecedence::values() const
{
    return m_dialog->collectTaskDocument()["paramsJson"_L1]["dynamicParams"_L1].toObject();
}

void TestTaskDialogPrecedence::precedenceOfTheSources_data()
{
    QTest::addColumn<QByteArray>("definition");
    QTest::addColumn<QString>("file");
    QTest::addColumn<QByteArray>("lastUsed");
    QTest::addColumn<QByteArray>("storedTask");
    QTest::addColumn<QByteArray>("created"); ///< what a new task shows
    QTest::addColumn<QByteArray>("edited");  ///< what the stored task shows
    const auto row = [](const char *name, const char *definition, const QString &file, const char *lastUsed,
                        const char *storedTask, const char *created, const char *edited) {
        QTest::newRow(name) << QByteArray(definition) << file << QByteArray(lastUsed) << QByteArray(storedTask)
                            << QByteArray(created) << QByteArray(edited);
    };
    row("definition alone", intField, {}, "{}", "{}", "30", "30");
    row("file over definition", intField, u"{\"k\": 12}"_s, "{}", "{}", "12", "12");
    row("last used over definition", intField, {}, R"({"k": 7})", "{}", "7", "30");
    row("file over last used", intField, u"{\"k\": 12}"_s, R"({"k": 7})", "{}", "12", "12");
    row("stored over definition", intField, {}, "{}", R"({"k": 8})", "30", "8");
    row("stored over file and last used", intField, u"{\"k\": 12}"_s, R"({"k": 7})", R"({"k": 8})", "12", "8");
    row("file with other keys", intField, u"{\"other\": 12}"_s, R"({"k": 7})", "{}", "7", "30");
    row("file names the key with options only", selectField, u"{\"k\": {\"options\": [\"WAV\", \"OGG\"]}}"_s,
        R"({"k": "WAV"})", R"({"k": "WAV"})", "\"OGG\"", "\"WAV\"");
    row("file names the key with nothing of use", textField, u"{\"k\": {}}"_s, R"({"k": "last"})", "{}",
        "\"definition\"", "\"definition\"");
    row("file empties the default", textField, u"{\"k\": null}"_s, R"({"k": "last"})", "{}", "\"\"", "\"\"");
    row("malformed file excludes nothing", textField, u"{\"k\": "_s, R"({"k": "last"})", "{}", "\"last\"",
        "\"definition\"");
    row("empty options keep the definition's", selectField, u"{\"k\": {\"options\": []}}"_s, "{}", R"({"k": "MP3"})",
        "\"OGG\"", "\"MP3\"");
    row("last used option is gone", selectField, {}, R"({"k": "FLAC"})", R"({"k": "FLAC"})", "\"OGG\"", "\"OGG\"");
    row("bool", boolField, u"{\"k\": false}"_s, R"({"k": true})", R"({"k": true})", "false", "true");
    row("double", doubleField, {}, R"({"k": 2.5})", R"({"k": -1})", "2.5", "-1");
    row("file that is no object", textField, u"[{\"k\": \"file\"}]"_s, R"({"k": "last"})", "{}", "\"last\"",
        "\"definition\"");
    row("file with the key in another case", intField, u"{\"K\": 12}"_s, R"({"k": 7})", "{}", "7", "30");
    row("file with the key further down", intField, u"{\"other\": {\"k\": 12}}"_s, R"({"k": 7})", "{}", "7", "30");
}

void TestTaskDialogPrecedence::precedenceOfTheSources()
{
    QFETCH(const QByteArray, definition);
    QFETCH(const QString, file);
    QFETCH(const QByteArray, lastUsed);
    QFETCH(const QByteArray, storedTask);
    QFETCH(const QByteArray, created);
    QFETCH(const QByteArray, edited);
    answerTypes({typeJson(screenType, {FormFields::object(definition.constData())})});
    remember(lastUsed.constData());
    openForCreate({}, file);
    QCOMPARE(values(), FormFields::object("{\"k\": " + created + "}"));
    answerTask({{u"paramsJson"_s, QJsonObject{{u"dynamicParams"_s, FormFields::object(storedTask.constData())}}}});
    open(u"t1"_s, {}, file);
    QCOMPARE(values(), FormFields::object("{\"k\": " + edited + "}"));
}

void TestTaskDialogPrecedence::eachKeyHasItsOwnSource()
{
    remember(R"({"fps": 77, "format": "AVI", "title": "last", "foreign": 4})");
    openForCreate({}, uR"({"format": {"options": ["MKV", "AVI"]}, "title": "file", "other": 1})"_s);
    QCOMPARE(values(), FormFields::object(R"({"fps": 77, "format": "MKV", "title": "file"})"));
}

void TestTaskDialogPrecedence::savedValuesAreOfferedToTheNextTask()
{
    openForCreate();
    QCOMPARE(fps()->value(), 30);
    enterEverything();
    saveSuccessfully();
    openForCreate();
    QCOMPARE(fps()->value(), 77);
    // Nothing else comes back.
    QCOMPARE(widget<QLineEdit>("runProgramEdit")->text(), QString());
    QCOMPARE(m_dialog->collectTaskDocument().value("paramsJson"_L1).toObject().value("displayMode"_L1).toString(),
             u"Show"_s);
    QCOMPARE(widget<QComboBox>("groupCombo")->currentIndex(), 0);
}

void TestTaskDialogPrecedence::editTakesNoLastValuesButWritesThem()
{
    remember(R"({"fps": 77, "gone": 1})");
    openForEdit({{u"dynamicParams"_s, QJsonObject{{u"title"_s, u"old"_s}}}});
    QCOMPARE(fps()->value(), 30);
    widget<QCheckBox>("enabledCheck")->setChecked(false);
    saveSuccessfully();
    QCOMPARE(storedValues(), FormFields::object(R"({"fps": 30, "format": "MP4", "title": "old"})"));
}

void TestTaskDialogPrecedence::typesRememberApart()
{
    openForCreate();
    enterEverything();
    saveSuccessfully();
    setClientType(u"task_type.audio_record"_s);
    openForCreate();
    widget<QLineEdit>("nameEdit")->setText(u"Sound"_s);
    m_daemon->clearRequests();
    saveSuccessfully();
    QCOMPARE(storedValues().value("fps"_L1).toInt(), 77);
    // A type without fields stores no parameters.
    QVERIFY(!sentTask(u"task.create"_s).value("paramsJson"_L1).toObject().contains("dynamicParams"_L1));
    QCOMPARE(storedValues(u"task_type.audio_record"_s), QJsonObject());
    QVERIFY(settingsKeys().contains("LastTaskDefaults/task_type.audio_record/taskFields/displayMode"_L1));
}

ORVEL_TEST_MAIN(QApplication, TestTaskDialogPrecedence)
#include "tst_taskdialogprecedence.moc"
