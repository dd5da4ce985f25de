#include "ZRDirectoryConfig.h"
#include "ZRLocaleAndTranslationManager.h"
#include "ZRProductTypeDescription.h"
#include "ZRProductTypeDescriptionReader.h"
#include "ZRTestSupport.h"
#include "ZRThematicCategory.h"
#include "ZRThematicCategoryTranslationRegistry.h"

#include <QElapsedTimer>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>

#include <memory>

namespace {
/** The entry points that read XML. */
enum class Entry
{
    ProductFile,
    ColourTable,
    TranslationFile,
    TranslationDocument
};

/** A document that @p entry accepts, with @p subset as internal DTD subset and @p body inside its content. */
QByteArray document(Entry entry, const QByteArray &subset, const QByteArray &body)
{
    static const char *const frames[][3]
        = { { "products", "<products><product name='hostile'>", "</product></products>" },
              { "colors", "<colors><color name='Rot' rgb='#ff0000'/>", "</colors>" },
              { "TS",
                  "<TS version='2.1' language='en'><context><name>Categories</name>"
                  "<message><source>Rot</source><translation>Red</translation></message>",
                  "</context></TS>" } };
    const auto &frame = frames[qMin(int(entry), 2)];
    return QByteArray("<?xml version='1.0' encoding='utf-8'?>\n<!DOCTYPE ") + frame[0]
        + (subset.isEmpty() ? QByteArray() : " [" + subset + "]") + ">" + frame[1] + body + frame[2];
}

QByteArray manyAttributes(int count)
{
    QByteArray element = "<a";
    for (int i = 0; i < count; ++i)
        element += " n" + QByteArray::number(i) + "=''";
    return element + "/>";
}

/** A translation registry whose files are read one by one by the test. */
class TranslationRegistry : public ZRThematicCategoryTranslationRegistry
{
public:
    using ZRThematicCategoryTranslationRegistry::parseXML;
};
} // namespace

Q_DECLARE_METATYPE(Entry)

class tst_HostileInput : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase();
    void init() { QTest::failOnWarning(QRegularExpression(QStringLiteral(".?"))); }

    void refusedQuickly_data();
    void refusedQuickly();

private:
    QTemporaryDir m_dir;
};

void tst_HostileInput::initTestCase()
{
    // The registries read no translation files of their own.
    ZRSingleton<ZRDirectoryConfig>::instance()->setGlimmerThematicTranslationsDirectories({ m_dir.path() });
    ZRSingleton<ZRDirectoryConfig>::instance()->setResourcesDir(QDir(m_dir.path()));
}

void tst_HostileInput::refusedQuickly_data()
{
    QTest::addColumn<Entry>("entry");
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<bool>("accepted");

    const QList<QPair<const char *, Entry>> entries { { "product file", Entry::ProductFile },
        { "colour table", Entry::ColourTable }, { "TS file", Entry::TranslationFile },
        { "TS document", Entry::TranslationDocument } };
    const QByteArray deep = QByteArray("<a>").repeated(130000);
    const QByteArray entity = "<!ENTITY e '" + QByteArray(4000, 'x') + "'>";
    for (const auto &[name, entry] : entries) {
        const auto row = [name = name](const char *what) -> QTestData & { return QTest::addRow("%s: %s", name, what); };
        row("well-formed") << entry << document(entry, {}, "<a b='c'>d</a>") << true;
        row("130,000 nested elements") << entry << document(entry, {}, deep + QByteArray("</a>").repeated(130000))
                                       << false;
        row("50,000 references to a 4,000-character entity")
            << entry << document(entry, entity, "<a>" + QByteArray("&e;").repeated(50000) + "</a>") << false;
        row("100,000 attributes") << entry << document(entry, {}, manyAttributes(100000)) << false;
        row("over 16 MiB") << entry << document(entry, {}, QByteArray("<a/>").repeated(4 * 1024 * 1024)) << false;
        row("binary") << entry << QByteArray("\x89PNG\r\n\x1a\n\0\0\0\rIHDR", 16) << false;
    }
}

// Every bad document ends in the warning of its format and the defaults, and fast: the limits stop
// the parse before it can crash the stack, fill the memory or take minutes.
void tst_HostileInput::refusedQuickly()
{
    QFETCH(Entry, entry);
    QFETCH(QByteArray, content);
    QFETCH(bool, accepted);

    const QString path = m_dir.filePath(entry == Entry::ColourTable ? "colors.xml" : "hostile.xml");
    QVERIFY(ZRTest::writeFile(path, content));
    if (!accepted && entry == Entry::ProductFile)
        QTest::ignoreMessage(QtWarningMsg, qPrintable("could not open " + path));
    else if (!accepted && entry != Entry::ColourTable)
        QTest::ignoreMessage(QtWarningMsg, "No TS element at beginning.");
    TranslationRegistry translations;
    ZRSingleton<ZRLocaleAndTranslationManager>::instance()->setThematicTranslations(content);

    QElapsedTimer timer;
    timer.start();
    switch (entry) {
    case Entry::ProductFile: {
        const std::unique_ptr<ZRProductTypeDescription> description(
            ZRProductTypeDescriptionReader(QDir(m_dir.path())).readFile(QFileInfo(path)));
        QCOMPARE(description ? description->productType().name() : QString(),
            accepted ? QStringLiteral("hostile") : QString());
        break;
    }
    case Entry::ColourTable:
        QCOMPARE(ZRThematicCategory::readColorsXML().value("Rot"), accepted ? QColor(Qt::red) : QColor());
        break;
    case Entry::TranslationFile:
        QCOMPARE(translations.parseXML(QFileInfo(path), true), accepted);
        break;
    case Entry::TranslationDocument:
        QCOMPARE(translations.initFromZIP(), accepted);
        break;
    }
    QVERIFY2(timer.elapsed() < 1000, qPrintable(QStringLiteral("took %1 ms").arg(timer.elapsed())));
    if (entry == Entry::TranslationFile || entry == Entry::TranslationDocument)
        QCOMPARE(translations.translate("Rot", QLocale(QLocale::English)), QLatin1String(accepted ? "Red" : "Rot"));
}

QTEST_GUILESS_MAIN(tst_HostileInput)
#include "tst_hostileinput.moc"
