#include "rules.h"

#include "checker.h"

#include "ZRDateRangeConstraint.h"
#include "ZRDefaultTemplateKey.h"
#include "ZRDefaultTemplateMap.h"
#include "ZRLookUpTable.h"
#include "ZRPageContext.h"
#include "ZRPageTypeList.h"
#include "ZRProductClassificationGroup.h"
#include "ZRProductTypeDescription.h"
#include "ZRSurroundingKey.h"
#include "ZRXMLDiagnostics.h"
#include "ZRXMLParser.h"

#include <QDomDocument>
#include <QDomElement>
#include <QFileInfo>
#include <QImageReader>
#include <QList>
#include <QSet>
#include <QStringList>

#include <algorithm>
#include <set>
#include <tuple>

namespace {
/** Enough content pages for every page pattern to show each of its pages on each side of a spread. */
constexpr unsigned int patternCounts = 32;
/** More content pages than any product has. */
constexpr unsigned int maximumContentPages = 9999;

const QString surroundingRule = QStringLiteral("surrounding-matches-no-page");

/** The key of a value: its own key when it has one, else the keys of its flags. */
template<typename W> QString keysOf(const W &value)
{
    const auto *table = value.enumToStringTable();
    const QString exact = table->valueToString().value(value.value());
    return exact.isEmpty() ? table->encodeCSV(value.value()) : exact;
}

/** The attribute @p name of @p element, or the element itself when it has no such attribute. */
QDomNode placeOf(QDomElement element, const QString &name)
{
    const QDomAttr attribute = element.attributeNode(name);
    return attribute.isNull() ? QDomNode(element) : QDomNode(attribute);
}

/** One page of the product, for some number of content pages. */
struct Page
{
    ZRPageType type;
    ZRPageAlignment alignment;
    int index = 0;

    ZRPageContext context() const { return ZRPageContext(type, alignment); }
};

/**
 * Every page the product can have: its expanded page list for each number of content pages that
 * shows a different page somewhere, with the alignment the library gives each page.
 */
class ProductPages
{
public:
    /** @p boundIndexes: page indexes that something is bound to; they are looked for with as many pages as needed. */
    ProductPages(const ZRProductTypeDescription &description, const QSet<int> &boundIndexes)
    {
        // Readers of the description report what they forgive while a collector is active; this
        // one keeps anything that expanding the pages might report away from the check's findings.
        const ZRXMLDiagnostics ignored;
        // Expanding a page list with a bad entry warns each time.
        const WarningCollector silent;
        int size = 0;
        int previousSize = 0;
        for (unsigned int count = 0; count <= patternCounts; ++count) {
            previousSize = size;
            size = add(description, count);
        }
        m_bounded = size == previousSize;
        if (m_bounded)
            return;
        std::set<unsigned int> counts;
        for (const int index : boundIndexes) {
            // Enough content pages to reach the index, and three more to see each page pattern there.
            const unsigned int first = std::min<unsigned int>(
                unsigned(std::max(index, 0)) + 1 + unsigned(description.countAbstractPages()), maximumContentPages);
            for (unsigned int count = first; count <= std::min(first + 3, maximumContentPages); ++count)
                counts.insert(count);
        }
        for (const unsigned int count : counts)
            add(description, count);
    }

    const QList<Page> &pages() const { return m_pages; }
    /** Whether some page is of @p type: any page, or the page at @p index when that is not -1. */
    bool has(const ZRPageType &type, int index = -1) const
    {
        return index == -1 ? m_types.contains(qint64(type.value())) : m_typesAt.contains(key(type, index));
    }
    bool isEmpty() const { return m_pages.isEmpty(); }
    bool reaches(int index) const { return index >= 0 && index < m_mostPages; }
    /** How many pages the product has, as far as they were expanded: "at most 26 pages". */
    QString limit() const
    {
        if (!m_bounded)
            return QStringLiteral("%1 pages with %2 content pages").arg(m_mostPages).arg(maximumContentPages);
        return m_mostPages == 0 ? QStringLiteral("no pages") : QStringLiteral("at most %1 pages").arg(m_mostPages);
    }
    /** The page types of the pages, in order of first appearance. */
    QString typeNames() const
    {
        if (m_typeNames.isEmpty()) {
            QStringList names;
            for (const Page &page : m_pages) {
                const QString name = keysOf(page.type);
                if (!names.contains(name))
                    names.append(name);
            }
            m_typeNames = names.join(QLatin1String(", "));
        }
        return m_typeNames;
    }

private:
    /** Adds the pages of @p count content pages that were not seen yet; returns how many pages there are. */
    int add(const ZRProductTypeDescription &description, unsigned int count)
    {
        const ZRPageTypeList types = description.pageTypes(count);
        m_mostPages = std::max(m_mostPages, types.size());
        // A page's alignment follows from the list and its place in it: the same list adds nothing new.
        if (sameTypes(types, m_previousTypes))
            return types.size();
        m_previousTypes = types;
        for (int index = 0; index < types.size(); ++index) {
            const Page page { types.at(index), description.pageAlignment(types, index), index };
            const qsizetype seen = m_seen.size();
            m_seen.insert(key(page.type, index) ^ (quint64(page.alignment.value()) << 24));
            if (m_seen.size() == seen)
                continue;
            m_pages.append(page);
            m_types.insert(qint64(page.type.value()));
            m_typesAt.insert(key(page.type, index));
        }
        return types.size();
    }

    static bool sameTypes(const ZRPageTypeList &a, const ZRPageTypeList &b)
    {
        return std::equal(a.begin(), a.end(), b.begin(), b.end(),
            [](const ZRPageType &x, const ZRPageType &y) { return x.value() == y.value(); });
    }

    /** Page type and index in one number; page indexes stay below 2^24, alignments take the next 8 bits. */
    static quint64 key(const ZRPageType &type, int index)
    {
        return quint64(type.value()) << 32 | quint32(index & 0xFFFFFF);
    }

    QList<Page> m_pages;
    ZRPageTypeList m_previousTypes;
    QSet<quint64> m_seen;
    QSet<quint64> m_typesAt;
    QSet<qint64> m_types;
    int m_mostPages = 0;
    bool m_bounded = true;
    mutable QString m_typeNames;
};

/** The "surrounding" elements in the order the library reads them into the product's list. */
QList<QDomElement> surroundingElements(const QDomElement &product)
{
    QList<QDomElement> result;
    for (QDomElement list = product.firstChildElement(QStringLiteral("surroundings")); !list.isNull();
         list = list.nextSiblingElement(QStringLiteral("surroundings"))) {
        for (QDomElement element = list.firstChildElement(QStringLiteral("surrounding")); !element.isNull();
             element = element.nextSiblingElement(QStringLiteral("surrounding")))
            result.append(element);
    }
    return result;
}

void checkSurroundingPages(
    const ZRSurroundingDescription &surrounding, const QDomElement &element, const ProductPages &pages)
{
    // A page matches with the surrounding's own variant: whether the product has that variant is not
    // a question of pages.
    const auto fits = [&](const Page &page) {
        return surrounding.isSuitable(ZRSurroundingKey(page.context(), page.index, surrounding.variant()));
    };
    const QList<Page> &all = pages.pages();
    // Keys that decode to nothing are reported where they are read.
    if (surrounding.pageTypes().value() == 0 || surrounding.alignments().value() == 0
        || std::any_of(all.cbegin(), all.cend(), fits))
        return;

    const QString what = QStringLiteral("the %1 surrounding").arg(keysOf(surrounding.surroundingType()));
    if (surrounding.pageNr() != -1) {
        ZRXMLDiagnostics::report(ZRXMLFinding::Warning, surroundingRule,
            QStringLiteral("%1 is for page %2, which the product never has (it has %3)")
                .arg(what)
                .arg(surrounding.pageNr())
                .arg(pages.limit()),
            placeOf(element, QStringLiteral("pageNr")));
        return;
    }

    // Whether pages of its types exist in other alignments tells which of the two attributes is wrong.
    const ZRSurroundingKey anyAlignment(
        ZRPageContext(surrounding.pageTypes(), ZRPageAlignment(ZRPageAlignmentAll)), -1, surrounding.variant());
    ZRPageAlignment alignments;
    for (const Page &page : all) {
        if (anyAlignment.isOkayFor(ZRSurroundingKey(page.context(), page.index, surrounding.variant())))
            alignments = ZRPageAlignment(ZRPageAlignmentEnum(alignments.value() | page.alignment.value()));
    }
    if (alignments.value() != 0) {
        ZRXMLDiagnostics::report(ZRXMLFinding::Warning, surroundingRule,
            QStringLiteral("%1 is for '%2' pages, but the product's pages of type '%3' are only %4")
                .arg(what, keysOf(surrounding.alignments()), keysOf(surrounding.pageTypes()), keysOf(alignments)),
            placeOf(element, QStringLiteral("alignment")),
            QStringLiteral("did you mean '%1'?").arg(keysOf(alignments)));
    } else {
        ZRXMLDiagnostics::report(ZRXMLFinding::Warning, surroundingRule,
            QStringLiteral("%1 is for pages of type '%2', which the product never has (its pages are %3)")
                .arg(what, keysOf(surrounding.pageTypes()), pages.typeNames()),
            placeOf(element, QStringLiteral("pageType")));
    }
}

/**
 * Reports the picture @p name, looked for in @p dir, when it is not there or is no picture; @p what
 * and @p detail are said before and after its name.
 */
void checkPicture(
    const QDir &dir, const QString &name, const QString &what, const QDomNode &node, const QString &detail = QString())
{
    const QString path = dir.absoluteFilePath(name);
    // Products of a catalogue share their pictures: each is looked at once per thread.
    thread_local QHash<QString, QString> problems;
    auto known = problems.constFind(path);
    if (known == problems.cend()) {
        QString problem;
        if (!QFileInfo(path).isFile())
            problem = QStringLiteral("is not in %1").arg(QDir::toNativeSeparators(dir.absolutePath()));
        else if (!QImageReader(path).canRead())
            problem = QStringLiteral("(%1) is no picture the editor can read").arg(QDir::toNativeSeparators(path));
        known = problems.insert(path, problem);
    }
    const QString &problem = known.value();
    if (problem.isEmpty())
        return;
    ZRXMLDiagnostics::report(ZRXMLFinding::Warning, QStringLiteral("missing-picture"),
        QStringLiteral("%1 '%2'%3 %4").arg(what, name, detail, problem), node);
}

void checkSurroundingPictures(
    const ZRSurroundingDescription &surrounding, QDomElement element, const Rules::Context &context)
{
    if (!surrounding.imageResource().isEmpty()) {
        checkPicture(context.resourcesDir, surrounding.imageResource(), QStringLiteral("surrounding picture"),
            element.attributeNode(QStringLiteral("image")));
    }
    if (!surrounding.imageResourceSpotColor().isEmpty()) {
        checkPicture(context.resourcesDir, surrounding.imageResourceSpotColor(), QStringLiteral("spot colour picture"),
            element.attributeNode(QStringLiteral("imageSpotColor")));
    }

    // Only pictures that the file names: the default loop picture belongs to the installation.
    QDomElement spirals = element.firstChildElement(QStringLiteral("spirals"));
    if (!surrounding.spiralConfig().hasSpiral())
        return;
    if (spirals.hasAttribute(QStringLiteral("variant"))) {
        checkPicture(context.thumbnailsDir, spirals.attribute(QStringLiteral("variant")),
            QStringLiteral("loop picture"), spirals.attributeNode(QStringLiteral("variant")));
    }
    const QDomElement loopImages = spirals.firstChildElement(QStringLiteral("loopImages"));
    for (QDomElement loopImage = loopImages.firstChildElement(QStringLiteral("loopImage")); !loopImage.isNull();
         loopImage = loopImage.nextSiblingElement(QStringLiteral("loopImage"))) {
        const QString colour = loopImage.attribute(QStringLiteral("variant"));
        const QString name = loopImage.attribute(QStringLiteral("imagePath"));
        // The library skips an entry without colour or picture.
        if (colour.isEmpty() || name.isEmpty())
            continue;
        checkPicture(context.thumbnailsDir, name, QStringLiteral("loop picture"),
            loopImage.attributeNode(QStringLiteral("imagePath")), QStringLiteral(" of the colour '%1'").arg(colour));
    }
}

/** The entries that the "default" element @p element alone gives, read by the library's own reader. */
ZRDefaultTemplateMap defaultsOf(const QDomElement &element)
{
    QDomDocument document;
    QDomElement defaults = document.createElement(QStringLiteral("defaults"));
    defaults.appendChild(document.importNode(element, true));
    document.appendChild(defaults);
    // What the reader forgives was reported when the product was read.
    const ZRXMLDiagnostics ignored;
    return ZRDefaultTemplateMap(defaults);
}

/**
 * Whether the short form "templates" @p value leaves the layout empty when no "layout" is beside it,
 * as the library reads it. The answer depends on the value alone, so it is found once per value.
 */
bool shortFormLeavesLayoutEmpty(const QString &value, const ZRPageType &pageType)
{
    thread_local QHash<QString, bool> known;
    const auto it = known.constFind(value);
    if (it != known.cend())
        return it.value();
    QDomDocument document;
    QDomElement entry = document.createElement(QStringLiteral("default"));
    entry.setAttribute(QStringLiteral("pageType"), keysOf(pageType));
    entry.setAttribute(QStringLiteral("templates"), value);
    const ZRDefaultTemplateMap map = defaultsOf(entry);
    bool empty = true;
    for (auto entry = map.cbegin(); entry != map.cend(); ++entry) {
        if (entry.key().defaultTemplateType() == ZRDefaultTemplateLayout && !entry.value().isEmpty())
            empty = false;
    }
    known.insert(value, empty);
    return empty;
}

/** What a "default" element names, read with the library's parsers. */
struct DefaultEntry
{
    QList<ZRPageType> pageTypes;
    int pageNr = -1;
    int scenePageCount = -1;
};

DefaultEntry entryOf(const QDomElement &element)
{
    // What the reader forgives was reported when the product was read.
    const ZRXMLDiagnostics ignored;
    DefaultEntry entry;
    for (const ZRPageType &type :
        ZRPageTypeList(ZRXMLParser::attribute(element, QStringLiteral("pageType"), QString(), true))) {
        // A part that decodes to no page type is reported where it is read.
        if (type.value() != 0 && !entry.pageTypes.contains(type))
            entry.pageTypes.append(type);
    }
    std::sort(entry.pageTypes.begin(), entry.pageTypes.end(),
        [](const ZRPageType &a, const ZRPageType &b) { return a.value() < b.value(); });
    entry.pageNr = ZRXMLParser::intAttribute(element, QStringLiteral("pageNr"), -1);
    entry.scenePageCount = ZRXMLParser::intAttribute(element, QStringLiteral("scenePageCount"), -1);
    return entry;
}

void checkDefault(const ZRProductTypeDescription &description, QDomElement element, const ProductPages &pages)
{
    const DefaultEntry entry = entryOf(element);
    if (entry.pageTypes.isEmpty())
        return;
    const int pageNr = entry.pageNr;
    const int scenePageCount = entry.scenePageCount;
    if (pageNr >= 0 && !pages.reaches(pageNr)) {
        ZRXMLDiagnostics::report(ZRXMLFinding::Warning, QStringLiteral("default-page-beyond-pages"),
            QStringLiteral("default templates for page %1, which the product never has (it has %2)")
                .arg(pageNr)
                .arg(pages.limit()),
            placeOf(element, QStringLiteral("pageNr")));
        return;
    }

    const QList<Page> &all = pages.pages();
    const auto applies = [&](const Page &page) { return pageNr == -1 || page.index == pageNr; };
    QStringList missing;
    for (const ZRPageType &pageType : entry.pageTypes) {
        if (!pages.has(pageType, pageNr))
            missing.append(keysOf(pageType));
    }
    if (!missing.isEmpty()) {
        QString pagesText;
        if (pageNr == -1) {
            pagesText = QStringLiteral("the product's pages are %1").arg(pages.typeNames());
        } else {
            QStringList atPage;
            for (const Page &page : all) {
                const QString name = keysOf(page.type);
                if (applies(page) && !atPage.contains(name))
                    atPage.append(name);
            }
            pagesText = QStringLiteral("page %1 is %2").arg(pageNr).arg(atPage.join(QLatin1String(" or ")));
        }
        ZRXMLDiagnostics::report(ZRXMLFinding::Warning, QStringLiteral("default-for-missing-page-type"),
            QStringLiteral("default templates for page type '%1', which %2 never has (%3)")
                .arg(missing.join(QLatin1String(", ")),
                    pageNr == -1 ? QStringLiteral("the product") : QStringLiteral("page %1").arg(pageNr), pagesText),
            placeOf(element, QStringLiteral("pageType")));
    }

    // The short form gives a layout only as its second of exactly two names.
    if (!element.hasAttribute(QStringLiteral("templates")) || element.hasAttribute(QStringLiteral("layout"))
        || !shortFormLeavesLayoutEmpty(element.attribute(QStringLiteral("templates")), entry.pageTypes.first()))
        return;
    const ZRDefaultTemplateMap own = defaultsOf(element);
    if (own.isEmpty())
        return;
    const ZRDefaultTemplateKey &anyKey = own.cbegin().key();
    const auto ownKey = [&](const ZRPageContext &context, ZRDefaultTemplateType kind) {
        return ZRDefaultTemplateKey(context, kind, pageNr, scenePageCount);
    };
    if (!own.value(ownKey(anyKey.pageContext(), ZRDefaultTemplateLayout)).isEmpty())
        return;
    for (const Page &page : all) {
        if (!applies(page) || !own.contains(ownKey(page.context(), ZRDefaultTemplateLayout))
            || !description.contentAllowedOnPage(page.index))
            continue;
        const ZRDefaultTemplateKey pageKey(page.context(), ZRDefaultTemplateLayout, page.index, scenePageCount);
        if (!description.findDefaultTemplate(pageKey).isEmpty())
            continue;
        ZRXMLDiagnostics::report(ZRXMLFinding::Warning, QStringLiteral("layout-left-empty"),
            QStringLiteral("'templates' \"%1\" gives no layout (only the short form \"background,layout\" of two "
                           "names does), so page %2 (%3, %4) gets no default layout")
                .arg(element.attribute(QStringLiteral("templates")))
                .arg(page.index)
                .arg(keysOf(page.type), keysOf(page.alignment)),
            element.attributeNode(QStringLiteral("templates")),
            QStringLiteral("\"<background>,<layout>\", or layout=\"\" for no layout"));
        return;
    }
}

void checkMargins(const ZRProductTypeDescription &description, QDomElement product)
{
    const auto report = [](const QDomNode &node, const QString &message) {
        ZRXMLDiagnostics::report(ZRXMLFinding::Warning, QStringLiteral("negative-margin"), message, node);
    };
    const QHash<ZRPageType, int> safetyMargins = description.safetyMarginTable();
    const int all = safetyMargins.value(ZRPageType(ZRPageTypeAll));
    if (all < 0) {
        report(product.attributeNode(QStringLiteral("safetymargin")),
            QStringLiteral("safety margin %1 is negative: the safe area reaches beyond the page").arg(all));
    }
    // -1 means that cover pages have no margin of their own; it is not stored.
    const ZRPageType covers(ZRPageTypeCovers);
    if (safetyMargins.contains(covers) && safetyMargins.value(covers) < 0) {
        report(product.attributeNode(QStringLiteral("safetymargincover")),
            QStringLiteral("cover safety margin %1 is negative: the safe area reaches beyond the cover (-1 means "
                           "none of its own)")
                .arg(safetyMargins.value(covers)));
    }
    if (description.foldSafetyMargin() < -1) {
        report(product.attributeNode(QStringLiteral("foldsafetymargin")),
            QStringLiteral("fold safety margin %1 is negative (-1 means none)").arg(description.foldSafetyMargin()));
    }
    QDomElement margin
        = product.firstChildElement(QStringLiteral("pageNumberConfig")).firstChildElement(QStringLiteral("margin"));
    const std::pair<QString, ZRDistance> indents[] = {
        { QStringLiteral("horizontalMargin"), description.pageNumberHorizontalIndent() },
        { QStringLiteral("verticalMargin"), description.pageNumberVerticalIndent() },
    };
    for (const auto &[name, indent] : indents) {
        if (indent.value() < 0) {
            report(margin.attributeNode(name),
                QStringLiteral("page number indent %1 is negative: the page number lies beyond the page")
                    .arg(indent.value()));
        }
    }
}

void checkDateRange(const ZRProductTypeDescription &description, const QDomElement &abilities)
{
    const ZRDateRangeConstraint range = description.dateRangeContraint();
    if (range.minimumFromCurrentYear() <= range.maximumFromCurrentYear())
        return;
    QDomElement element = abilities.firstChildElement(QStringLiteral("dateRangeConstraint"));
    const QString minimum = QStringLiteral("minimumFromCurrentYear");
    // An enforced range that starts after it ends leaves no year to start the calendar in.
    ZRXMLDiagnostics::report(range.enforce() ? ZRXMLFinding::Error : ZRXMLFinding::Warning,
        QStringLiteral("inverted-date-range"),
        QStringLiteral("the first allowed year (%1 from now) lies after the last one (%2 from now)%3")
            .arg(range.minimumFromCurrentYear())
            .arg(range.maximumFromCurrentYear())
            .arg(range.enforce() ? QStringLiteral(": no year is allowed")
                                 : QStringLiteral("; the range is not enforced yet")),
        element.hasAttribute(minimum) ? placeOf(element, minimum)
                                      : placeOf(element, QStringLiteral("maximumFromCurrentYear")));
}

void checkCategories(const QDomElement &abilities)
{
    const QDomElement jigs = abilities.firstChildElement(QStringLiteral("jigs"));
    for (QDomElement jig = jigs.firstChildElement(); !jig.isNull(); jig = jig.nextSiblingElement()) {
        for (QDomElement categories = jig.firstChildElement(QStringLiteral("categories")); !categories.isNull();
             categories = categories.nextSiblingElement(QStringLiteral("categories"))) {
            // The names are kept as written: blanks around one make it a category of its own.
            const QStringList names = categories.text().split(QLatin1Char(','), Qt::SkipEmptyParts);
            for (const QString &name : names) {
                if (name.trimmed() == name)
                    continue;
                ZRXMLDiagnostics::report(ZRXMLFinding::Warning, QStringLiteral("category-never-matches"),
                    QStringLiteral("category '%1' of <%2> never matches: the blanks around its name are part of it")
                        .arg(name.trimmed(), jig.tagName()),
                    categories, QStringLiteral("did you mean '%1'?").arg(name.trimmed()));
            }
        }
    }
}

void checkClassification(const ZRProductTypeDescription &description, QDomElement product)
{
    const ZRProductClassificationGroup group = description.classification().group();
    if (group.value().isEmpty())
        return;
    ZRLookUpTable<QString, QString> known;
    group.initDescriptions(&known);
    if (known.contains(group.value()))
        return;
    ZRXMLDiagnostics::report(ZRXMLFinding::Warning, QStringLiteral("unknown-classification-group"),
        QStringLiteral("the wall-decor group '%1' is not known: the editor shows it without a name").arg(group.value()),
        placeOf(product.firstChildElement(QStringLiteral("classification")), QStringLiteral("group")));
}
} // namespace

void Rules::checkProduct(
    const ZRProductTypeDescription &description, const QDomElement &product, const Context &context)
{
    const ZRSurroundingDescriptionList surroundings = description.surroundings();
    const QList<QDomElement> surroundingNodes = surroundingElements(product);
    const QDomElement defaults = product.firstChildElement(QStringLiteral("defaults"));

    QSet<int> boundIndexes;
    for (const ZRSurroundingDescription &surrounding : surroundings)
        boundIndexes.insert(surrounding.pageNr());
    const ZRDefaultTemplateMap templates = description.defaultTemplates();
    for (auto it = templates.cbegin(); it != templates.cend(); ++it)
        boundIndexes.insert(it.key().pageNumber());
    const ProductPages pages(description, boundIndexes);

    checkMargins(description, product);
    for (int i = 0; i < std::min(surroundings.size(), surroundingNodes.size()); ++i) {
        if (!pages.isEmpty())
            checkSurroundingPages(surroundings.at(i), surroundingNodes.at(i), pages);
        if (!context.legacy)
            checkSurroundingPictures(surroundings.at(i), surroundingNodes.at(i), context);
    }
    if (!pages.isEmpty()) {
        for (QDomElement entry = defaults.firstChildElement(QStringLiteral("default")); !entry.isNull();
             entry = entry.nextSiblingElement(QStringLiteral("default")))
            checkDefault(description, entry, pages);
    }
    const QDomElement abilities = product.firstChildElement(QStringLiteral("editorAbilities"));
    checkDateRange(description, abilities);
    checkCategories(abilities);
    checkClassification(description, product);
}
