#include "ZRDirectoryConfig.h"
#include "ZRLocaleAndTranslationManager.h"
#include "ZRProductTypeDescription.h"
#include "ZRProductTypeDescriptionReader.h"
#include "ZRSurroundingDescriptionList.h"
#include "ZRTestSupport.h"
#include "ZRThematicCategory.h"
#include "ZRThematicCategoryTranslationRegistry.h"
#include "ZRXMLLimits.h"

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

/** A product file of @p body, named "hostile". */
QByteArray product(const QByteArray &body)
{
    return "<products><product name='hostile' class='photobook' binding='hardcover'>" + body + "</product></products>";
}

/** @p count numbers from 1, separated by commas. */
QByteArray numbers(int count)
{
    QByteArray list;
    for (int i = 1; i <= count; ++i)
        list += QByteArray::number(i) + ',';
    return list;
}

/** The pages that the page lists of @p description kept, over all of them. */
int keptPages(const ZRProductTypeDescription &description)
{
    return int(description.contentDropRedirects().size() + description.extraProductionContents().totalPages()
        + description.productionNumbering().size() + description.pagesWithContent().size()
        + description.editorAbilities().userPageTiltConfig().pages().size());
}

/** Draws the spiral strips and hooks of @p description; true when each is null. */
bool spiralPicturesAreNull(const ZRProductTypeDescription &description)
{
    bool null = true;
    for (const ZRSurroundingDescription &surrounding : description.surroundings()) {
        const ZRSpiralConfig spiral = surrounding.spiralConfig();
        null = null && spiral.spiralImage(Qt::Horizontal).isNull() && spiral.spiralImage(Qt::Vertical).isNull()
            && spiral.spiralHookImage().isNull();
    }
    return null;
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
private Q_SLOTS:
    void initTestCase();
    void init() { QTest::failOnWarning(QRegularExpression(QStringLiteral(".?"))); }

    void refusedQuickly_data();
    void refusedQuickly();
    void hostileValuesBesideAGoodProduct_data();
    void hostileValuesBesideAGoodProduct();

private:
    QTemporaryDir m_dir;
};

void tst_HostileInput::initTestCase()
{
    // The registries read no translation files of their own.
    ZRSingleton<ZRDirectoryConfig>::instance()->setGlimmerThematicTranslationsDirectories({ m_dir.path() });
    ZRSingleton<ZRDirectoryConfig>::instance()->setResourcesDir(QDir(m_dir.path()));
    ZRSingleton<ZRDirectoryConfig>::instance()->setGlimmerThumbnailsDirectory(
        QDir(QStringLiteral(ZR_EXAMPLES_DIR "/resources/thumbnails")));
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
        row("16 MiB of tiny elements") << entry
                                       << document(entry, {}, QByteArray("<a/>").repeated(4 * 1024 * 1024 - 100))
                                       << false;
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

void tst_HostileInput::hostileValuesBesideAGoodProduct_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QByteArray>("warning");
    QTest::addColumn<int>("pages");

    const QByteArray tooLong = "Page list too long in the product description.";
    const QByteArray limit = QByteArray::number(ZRXMLLimits::maxListPages);
    const QByteArray limitMinusOne = QByteArray::number(ZRXMLLimits::maxListPages - 1);
    const auto redirect = [](const QByteArray &from) -> QByteArray {
        return "<contentredirects><contentredirect from='" + from + "' to='1'/></contentredirects>";
    };
    const auto extraPages = [](const QByteArray &first, const QByteArray &second) -> QByteArray {
        return "<extra_production_pages><item><target_pages>" + first + "</target_pages></item><item><target_pages>"
            + second + "</target_pages></item></extra_production_pages>";
    };
    const auto listed = [](const char *element, const QByteArray &list) -> QByteArray {
        return '<' + QByteArray(element) + '>' + list + "</" + element + '>';
    };
    // Each list has at most the limit of pages; the redirects and the extra pages count over all entries.
    QTest::newRow("content redirect to the largest int") << product(redirect("0-2147483647")) << tooLong << 0;
    QTest::newRow("content redirects of the limit")
        << product(redirect("1-" + limit)) << QByteArray() << ZRXMLLimits::maxListPages;
    QTest::newRow("content redirects past the limit, in two") << product("<contentredirects><contentredirect from='1-"
        + limit + "' to='1'/><contentredirect from='1' to='2'/></contentredirects>")
                                                              << tooLong << 0;
    QTest::newRow("negative content redirect range")
        << product(redirect("-2147483648-2147483647")) << QByteArray("parse error") << 0;
    QTest::newRow("extra page range of 2^31 pages") << product(extraPages("-2147483647", "1")) << tooLong << 1;
    QTest::newRow("extra pages of the limit, in two")
        << product(extraPages("1-" + limitMinusOne, "1")) << QByteArray() << ZRXMLLimits::maxListPages;
    QTest::newRow("extra pages past the limit, in two") << product(extraPages("1-" + limit, "1")) << tooLong << 0;
    QTest::newRow("production numbers of the limit")
        << product(listed("productionnumbering", numbers(ZRXMLLimits::maxListPages))) << QByteArray()
        << ZRXMLLimits::maxListPages;
    QTest::newRow("20,000 production numbers")
        << product(listed("productionnumbering", numbers(20000))) << tooLong << 0;
    QTest::newRow("20,000 pages with content") << product(listed("pageswithcontent", numbers(20000))) << tooLong << 0;
    QTest::newRow("20,000 pages without tilt")
        << product("<editorAbilities><pageTilt disabled='true' pages='" + numbers(20000) + "'/></editorAbilities>")
        << tooLong << 0;
    const QByteArray largest = "2147483647";
    QTest::newRow("spiral and hole with every number at the largest int") << product(
        "<surroundings><surrounding type='CALENDAR' spinefoldwidth='" + largest + "' x='" + largest + "' y='" + largest
        + "' width='" + largest + "' height='" + largest + "' tileWidth='" + largest + "' tileHeight='" + largest
        + "' spotColorMask='" + QByteArray("0 0 2147483647 2147483647;").repeated(40000) + "'><spirals count='"
        + largest + "' hookWidth='" + largest + "' hookHeight='" + largest + "' loopHeight='" + largest
        + "' loopWidth='" + largest + "' loopDistance='" + largest + "'/><hole diameter='" + largest + "' distanceY='"
        + largest + "'/></surrounding></surroundings>") << QByteArray() << 0;
    QTest::newRow("spiral strip past the pixel budget")
        << product("<surroundings><surrounding type='CALENDAR'><spirals count='200000' hookWidth='8192' "
                   "hookHeight='1025'/></surrounding></surroundings>")
        << QByteArray() << 0;
}

// A hostile value costs its own list or picture and nothing else: the reader ends quickly and the good
// product beside it loads.
void tst_HostileInput::hostileValuesBesideAGoodProduct()
{
    QFETCH(QByteArray, content);
    QFETCH(QByteArray, warning);
    QFETCH(int, pages);

    QTemporaryDir dir;
    QVERIFY(ZRTest::writeFile(dir.path(), QStringLiteral("hostile.xml"), content));
    QVERIFY(ZRTest::writeFile(dir.path(), QStringLiteral("good.xml"), product({}).replace("hostile", "good")));
    if (!warning.isEmpty())
        QTest::ignoreMessage(QtWarningMsg, warning.constData());

    QElapsedTimer timer;
    timer.start();
    const QHash<ZRProductType, ZRProductTypeDescription *> descriptions
        = ZRProductTypeDescriptionReader(QDir(dir.path())).readDir();
    const std::unique_ptr<ZRProductTypeDescription> good(descriptions.value(ZRProductType(QStringLiteral("good"))));
    const std::unique_ptr<ZRProductTypeDescription> hostile(
        descriptions.value(ZRProductType(QStringLiteral("hostile"))));
    QVERIFY(good && good->isValid());
    QVERIFY(hostile);
    QCOMPARE(keptPages(*hostile), pages);
    QVERIFY(spiralPicturesAreNull(*hostile));
    // Sizes at the end of the range of int are held there, not overflowed.
    for (const ZRSurroundingDescription &surrounding : hostile->surroundings()) {
        QVERIFY(surrounding.spineFoldWithSafetyMargins() >= surrounding.spineFoldWidth());
        const QRect area = surrounding.editableArea();
        QVERIFY(area.isNull() || area.right() >= area.left());
    }
    QVERIFY2(timer.elapsed() < 5000, qPrintable(QStringLiteral("took %1 ms").arg(timer.elapsed())));
}

QTEST_GUILESS_MAIN(tst_HostileInput)
#include "tst_hostileinput.moc"
