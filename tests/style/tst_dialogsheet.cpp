#include "stylesheets.h"
#include "testmain.h"

#include <QCoreApplication>
#include <QMap>
#include <QRegularExpression>
#include <QStringList>
#include <QTest>

#include <cstddef>

using namespace Qt::StringLiterals;
using namespace Scheduler;

namespace {

/// Each "property: value", in the order of the sheet, for a later one may change an earlier one.
using Declarations = QStringList;

Declarations declarationsIn(const QString &block)
{
    Declarations found;
    const QStringList parts = block.split(u';');
    for (const QString &part : parts) {
        if (!part.trimmed().isEmpty())
            found.append(part.section(u':', 0, 0).simplified() + u": "_s + part.section(u':', 1).simplified());
    }
    return found;
}

/// Selector -> declarations. A selector that comes twice is no part of it but for the last time, and is named in
/// doubles.
QMap<QString, Declarations> rulesIn(const QString &sheet, QStringList *doubles = nullptr)
{
    static const QRegularExpression rule(u"([^{}]+)\\{([^{}]*)\\}"_s);
    QMap<QString, Declarations> rules;
    for (const QRegularExpressionMatch &match : rule.globalMatch(sheet)) {
        const QString selector = match.captured(1).simplified();
        if (doubles != nullptr && rules.contains(selector))
            doubles->append(selector);
        rules.insert(selector, declarationsIn(match.captured(2)));
    }
    return rules;
}

struct Rule {
    const char *selector;
    const char *declarations;
};

constexpr Rule dialogRules[] = {
    {"QDialog", "background-color: #f4f6f8"},
    {"QScrollArea", "border: none"},
    {"QScrollArea::corner", "border: none; background: transparent"},
    {"QGroupBox", "background-color: #ffffff; border: 1.5px solid #a8c8f0; border-radius: 8px; margin-top: 0px;"
                  "padding: 12px 10px 10px 10px"},
    {"QGroupBox::title", "font-size: 0px; color: transparent"},
    {"QLabel", "color: #444444; background: transparent"},
    {"QCheckBox", "background: transparent"},
    {"QGroupBox > .QWidget", "background: transparent"},
    {"QAbstractSpinBox", "background-color: transparent; border: 1px solid #cfd6dd; border-radius: 4px;"
                         "padding: 3px 6px"},
    {"QAbstractSpinBox:focus", "border-color: #4a90e2"},
    {"QLineEdit:disabled", "background-color: #f0f0f0; color: #888888"},
    {"QRadioButton.modeCard", "background-color: #f8f9fb; border: 1px solid #d8dde3; border-radius: 6px;"
                              "padding: 6px 12px; padding-left: 8px; font-size: 14px; spacing: 6px; min-height: 28px"},
    {"QRadioButton.modeCard:hover", "background-color: #eaf2ff; border-color: #4a90e2"},
    {"QRadioButton.modeCard:checked", "background-color: #dbe9ff; border-color: #4a90e2; font-weight: bold;"
                                      "color: #2a6bcf"},
    {"QListWidget#navList", "background-color: #ffffff; border: 1.5px solid #a8c8f0; border-radius: 8px;"
                            "font-size: 14px; outline: none"},
    {"QListWidget#navList::item", "padding: 8px 12px; border-bottom: 1px solid #eef0f3"},
    {"QListWidget#navList::item:hover", "background-color: #eaf2ff"},
    {"QListWidget#navList::item:selected", "background-color: #4a90e2; color: #ffffff; font-weight: bold"},
    {"QWidget#customOutputWidget", "background-color: #f9fafb; border: 1px dashed #cfd6dd; border-radius: 4px;"
                                   "padding: 6px"},
    {"QComboBox", "background-color: #ffffff; border: 1px solid #cfd6dd; border-radius: 4px;"
                  "padding: 3px 24px 3px 6px; min-height: 22px"},
    {"QComboBox:focus", "border-color: #4a90e2"},
    {"QComboBox::drop-down", "subcontrol-origin: padding; subcontrol-position: center right; width: 22px;"
                             "border: none; background: transparent"},
    {"QComboBox::down-arrow", "image: none; border: none; width: 0px; height: 0px"},
    {"QComboBox QAbstractItemView", "background-color: #ffffff; border: 1px solid #cfd6dd;"
                                    "selection-background-color: #4a90e2; selection-color: #ffffff"},
};

constexpr Rule radioRules[] = {
    {"QRadioButton", "spacing: 6px"},
    {"QRadioButton::indicator", "width: 16px; height: 16px; margin-right: 4px"},
    {"QRadioButton::indicator:unchecked", "border: 1px solid #8f99a3; border-radius: 8px; background-color: #ffffff"},
    {"QRadioButton::indicator:checked", "border: 1px solid #4a90e2; border-radius: 8px;"
                                        "background: qradialgradient(cx:0.5, cy:0.5, radius:0.5, fx:0.5, fy:0.5, "
                                        "stop:0.00 #4a90e2, stop:0.35 #4a90e2, stop:0.36 #ffffff, stop:1.00 #ffffff)"},
    {"QRadioButton::indicator:unchecked:disabled",
     "border: 1px solid #c7ccd3; border-radius: 8px; background-color: #f3f4f6"},
    {"QRadioButton::indicator:checked:disabled",
     "border: 1px solid #b7c8df; border-radius: 8px;"
     "background: qradialgradient(cx:0.5, cy:0.5, radius:0.5, fx:0.5, fy:0.5, "
     "stop:0.00 #9db7df, stop:0.35 #9db7df, stop:0.36 #f3f4f6, stop:1.00 #f3f4f6)"},
};

template <std::size_t Count> QStringList selectorsOf(const Rule (&rules)[Count])
{
    QStringList selectors;
    for (const Rule &rule : rules)
        selectors.append(QString::fromLatin1(rule.selector));
    selectors.sort();
    return selectors;
}

} // namespace

/// The rules of the sheets, one by one. What a rule does is hard to see in a picture for many of them.
class TestDialogSheet : public QObject {
    Q_OBJECT

private slots:
    void ruleHasItsDeclarations_data();
    void ruleHasItsDeclarations();
    void everyRuleIsKnown_data();
    void everyRuleIsKnown();
};

void TestDialogSheet::ruleHasItsDeclarations_data()
{
    QTest::addColumn<QString>("sheet");
    QTest::addColumn<QString>("declarations");
    const auto addRows = [](const auto &rules, const QString &sheet) {
        for (const Rule &rule : rules)
            QTest::newRow(rule.selector) << sheet << QString::fromLatin1(rule.declarations);
    };
    addRows(dialogRules, taskDialogStyleSheet());
    addRows(radioRules, modeRadioStyleSheet());
}

void TestDialogSheet::ruleHasItsDeclarations()
{
    QFETCH(const QString, sheet);
    QFETCH(const QString, declarations);
    const auto rules = rulesIn(sheet);
    const QString selector = QString::fromLatin1(QTest::currentDataTag());
    QVERIFY(rules.contains(selector));
    QCOMPARE(rules.value(selector), declarationsIn(declarations));
}

void TestDialogSheet::everyRuleIsKnown_data()
{
    QTest::addColumn<QString>("sheet");
    QTest::addColumn<QStringList>("selectors");
    QTest::newRow("dialog") << taskDialogStyleSheet() << selectorsOf(dialogRules);
    QTest::newRow("mode radio") << modeRadioStyleSheet() << selectorsOf(radioRules);
}

void TestDialogSheet::everyRuleIsKnown()
{
    QFETCH(const QString, sheet);
    QFETCH(const QStringList, selectors);
    QStringList doubles;
    const auto rules = rulesIn(sheet, &doubles);
    QCOMPARE(doubles, QStringList());
    QStringList found = rules.keys();
    found.sort();
    QCOMPARE(found, selectors);
    static const QRegularExpression anyRule(u"[^{}]+\\{[^{}]*\\}"_s);
    QCOMPARE(QString(sheet).remove(anyRule).trimmed(), QString());
}

ORVEL_TEST_MAIN(QCoreApplication, TestDialogSheet)
#include "tst_dialogsheet.moc"
