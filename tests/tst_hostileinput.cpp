#include "ZRDirectoryConfig.h"
#include "ZRLocaleAndTranslationManager.h"
#include "ZRProductTypeDescription.h"
#include "ZRProductTypeDescriptionReader.h"
#include "ZRThematicCategory.h"
#include "ZRThematicCategoryTranslationRegistry.h"
#include "ZRXMLLimits.h"

#include <QElapsedTimer>
#include <QFile>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>

#include <memory>

namespace {
/** The entry points that read XML, each with a document it accepts around the hostile part. */
enum class Entry
{
    ProductFile,
    ColourTable,
    TranslationFile,
    TranslationDocument
};

struct Frame
{
    QByteArray prolog; // followed by the internal subset, if any, and "]>"
    QByteArray begin;
    QByteArray end;
};

Frame frameOf(Entry entry)
{
    switch (entry) {
    case Entry::ProductFile:
        return { "<!DOCTYPE products", "<products><product name='hostile'>", "</product></products>" };
    case Entry::ColourTable:
        return { "<!DOCTYPE colors", "<colors><color name='Rot' rgb='#ff0000'/>", "</colors>" };
    case Entry::TranslationFile:
    case Entry::TranslationDocument:
        break;
    }
    return { "<?xml version='1.0' encoding='utf-8'?>\n<!DOCTYPE TS",
        "<TS version='2.1' language='en'><context><name>Categories</name>"
        "<message><source>Rot</source><translation>Red</translation></message>",
        "</context></TS>" };
}

QByteArray document(Entry entry, const QByteArray &subset, const QByteArray &body, bool closed = true)
{
    const Frame frame = frameOf(entry);
    return frame.prolog + (subset.isEmpty() ? QByteArray() : " [" + subset + "]") + ">" + frame.begin + body
        + (closed ? frame.end : QByteArray());
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
    QVERIFY(m_dir.isValid());
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
    const QByteArray longText(ZRXMLLimits::maxValueLength + 1, 'x');
    for (const auto &[name, entry] : entries) {
        const auto row = [name = name](const char *what) -> QTestData & { return QTest::addRow("%s: %s", name, what); };
        row("well-formed") << entry << document(entry, {}, "<a b='c'>d</a>") << true;
        row("130,000 nested elements") << entry << document(entry, {}, deep + QByteArray("</a>").repeated(130000))
                                       << false;
        row("truncated in 130,000 nested elements") << entry << document(entry, {}, deep, false) << false;
        row("50,000 references to a 4,000-character entity")
            << entry << document(entry, entity, "<a>" + QByteArray("&e;").repeated(50000) + "</a>") << false;
        row("default attributes") << entry << document(entry, "<!ATTLIST a b CDATA 'c'>", "<a/>") << false;
        row("100,000 attributes") << entry << document(entry, {}, manyAttributes(100000)) << false;
        row("text over 1 MiB") << entry << document(entry, {}, "<a>" + longText + "</a>") << false;
        row("attribute value over 1 MiB") << entry << document(entry, {}, "<a b='" + longText + "'/>") << false;
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

    const QString path
        = m_dir.filePath(entry == Entry::ColourTable ? QStringLiteral("colors.xml") : QStringLiteral("hostile.xml"));
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly | QIODevice::Truncate));
    QCOMPARE(file.write(content), content.size());
    file.close();
    if (!accepted) {
        if (entry == Entry::ProductFile)
            QTest::ignoreMessage(QtWarningMsg, qPrintable(QStringLiteral("could not open ") + path));
        else if (entry != Entry::ColourTable)
            QTest::ignoreMessage(QtWarningMsg, "No TS element at beginning.");
    }
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
        QCOMPARE(
            ZRThematicCategory::readColorsXML().value(QStringLiteral("Rot")), accepted ? QColor(Qt::red) : QColor());
        break;
    case Entry::TranslationFile:
        QCOMPARE(translations.parseXML(QFileInfo(path), true), accepted);
        break;
    case Entry::TranslationDocument:
        QCOMPARE(translations.initFromZIP(), accepted);
        break;
    }
    const qint64 elapsed = timer.elapsed();
    QVERIFY2(elapsed < 1000, qPrintable(QStringLiteral("took %1 ms").arg(elapsed)));
    if (entry == Entry::TranslationFile || entry == Entry::TranslationDocument) {
        QCOMPARE(translations.translation(QStringLiteral("Rot"), QLocale(QLocale::English)),
            accepted ? QStringLiteral("Red") : QStringLiteral("Rot"));
    }
}

QTEST_GUILESS_MAIN(tst_HostileInput)
#include "tst_hostileinput.moc"
