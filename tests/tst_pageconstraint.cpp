#include "ZRPageConstraint.h"
#include "ZRTestSupport.h"

#include <QDomDocument>
#include <QRegularExpression>
#include <QSet>
#include <QTest>

namespace {
ZRPageConstraint constraint(const QString &pageTypes, const QString &alignments)
{
    return ZRPageConstraint(ZRPageType(pageTypes), ZRPageAlignment(alignments));
}

/** The names between the braces that follow @p label in a describe() text. */
QSet<QString> describedNames(const QString &text, const QString &label)
{
    const QRegularExpression braces(QRegularExpression::escape(label) + QStringLiteral(" \\{([^}]*)\\}"));
    const QString inner = braces.match(text).captured(1);
    const QStringList names = inner.split(QStringLiteral(", "), Qt::SkipEmptyParts);
    return QSet<QString>(names.begin(), names.end());
}
} // namespace

class tst_PageConstraint : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init() { QTest::failOnWarning(QRegularExpression(QStringLiteral(".?"))); }

    void matches_data();
    void matches();
    void admitsAndNamesPageType_data();
    void admitsAndNamesPageType();
    void insertionDecomposes();
    void mutatingACopyLeavesTheOriginal();
    void describe_data();
    void describe();
    void toXmlWritesEachValue();
};

void tst_PageConstraint::matches_data()
{
    QTest::addColumn<ZRPageConstraint>("first");
    QTest::addColumn<ZRPageConstraint>("second");
    QTest::addColumn<bool>("expected");
    QTest::addColumn<QString>("difference");

    const QString okay = QStringLiteral("Page Constraints Okay");
    const QString differ = QStringLiteral("Page Constraints differ: PageType: %1, Alignment %2");
    // clang-format off
    QTest::newRow("all vs all") << ZRPageConstraint() << ZRPageConstraint() << true << okay;
    QTest::newRow("all vs cover") << ZRPageConstraint() << constraint("cover_front", "left") << true << okay;
    QTest::newRow("cover vs content") << ZRPageConstraint(ZRPageType(ZRPageTypeCoverFront)) << ZRPageConstraint(ZRPageType(ZRPageTypeContent))
                                      << false << differ.arg(0).arg(1);
    QTest::newRow("left vs right") << constraint("content", "left") << constraint("content", "right") << false << differ.arg(1).arg(0);
    QTest::newRow("nothing shared") << constraint("cover_front", "left") << constraint("content", "right") << false << differ.arg(0).arg(0);
    QTest::newRow("compound shares a flag") << constraint("photo,content", "left,right") << constraint("content", "right") << true << okay;
    QTest::newRow("covers holds cover_back") << constraint("covers", "") << constraint("cover_back", "center") << true << okay;
    // clang-format on
}

void tst_PageConstraint::matches()
{
    QFETCH(ZRPageConstraint, first);
    QFETCH(ZRPageConstraint, second);
    QFETCH(bool, expected);

    QCOMPARE(first.matches(second), expected);
    QCOMPARE(second.matches(first), expected);
    QTEST(first.describeDifference(second), "difference");
}

void tst_PageConstraint::admitsAndNamesPageType_data()
{
    QTest::addColumn<QString>("constraintTypes");
    QTest::addColumn<int>("queried");
    QTest::addColumn<bool>("isPageType");
    QTest::addColumn<bool>("sharesPageType");
    QTest::newRow("all admits but names nothing") << "" << int(ZRPageTypeContent) << true << false;
    QTest::newRow("invalid type, all") << "" << 0 << false << false;
    QTest::newRow("invalid type, content") << "content" << 0 << false << false;
    QTest::newRow("other type") << "cover_front" << int(ZRPageTypeContent) << false << false;
    QTest::newRow("compound constraint") << "photo,content" << int(ZRPageTypeContent) << true << true;
    QTest::newRow("compound query") << "content" << int(ZRPageTypePhotoPage) << true << true;
    QTest::newRow("no common flag") << "content" << int(ZRPageTypeGrid) << false << false;
    QTest::newRow("covers query") << "cover_front" << int(ZRPageTypeCovers) << true << true;
    // A value with the sign bit set is valid but splits into no flags.
    QTest::newRow("no flags to split") << "content" << int(0x80000000u) << true << false;
}

void tst_PageConstraint::admitsAndNamesPageType()
{
    QFETCH(QString, constraintTypes);
    QFETCH(int, queried);
    QFETCH(bool, isPageType);
    QFETCH(bool, sharesPageType);

    const ZRPageConstraint c { ZRPageType(constraintTypes) };
    const ZRPageType type { ZRPageTypeEnum(queried) };
    QCOMPARE(c.isPageType(type), isPageType);
    QCOMPARE(c.sharesPageType(type), sharesPageType);
}

void tst_PageConstraint::insertionDecomposes()
{
    ZRPageConstraint c { ZRPageType(QStringLiteral("photo,content")) };
    QCOMPARE(ZRTest::sortedValues(c.pageTypes()), QList<int>({ ZRPageTypePhoto, ZRPageTypeContent }));
    c.addPageType(ZRPageType(ZRPageTypeInsideCovers));
    QCOMPARE(ZRTest::sortedValues(c.pageTypes()),
        QList<int>({ ZRPageTypePhoto, ZRPageTypeContent, ZRPageTypeCoverInsideFront, ZRPageTypeCoverInsideBack }));
    c.setPageTypes(ZRPageType(ZRPageTypeSpine));
    QCOMPARE(ZRTest::sortedValues(c.pageTypes()), QList<int>({ ZRPageTypeSpine }));
    c.setPageTypes(ZRPageType());
    QVERIFY(c.pageTypes().isEmpty());

    const ZRPageConstraint fromContext(
        ZRPageContext(ZRPageTypeGridPage, ZRPageAlignmentEnum(ZRPageAlignmentLeft | ZRPageAlignmentTop)));
    QCOMPARE(fromContext, constraint("grid,content", "top,left"));
    QVERIFY(fromContext != constraint("grid,content", "top"));
}

void tst_PageConstraint::mutatingACopyLeavesTheOriginal()
{
    const ZRPageConstraint original = constraint("content", "left");
    ZRPageConstraint copy = original;
    copy.addPageType(ZRPageType(ZRPageTypeCoverFront));
    copy.setIntendedAlignment(ZRPageAlignment(ZRPageAlignmentRight));
    ZRPageConstraint assigned;
    assigned = original;
    assigned.addIntendedAlignment(ZRPageAlignment(ZRPageAlignmentRight));
    QCOMPARE(original, constraint("content", "left"));
    QCOMPARE(copy, constraint("content,cover_front", "right"));
    QCOMPARE(assigned, constraint("content", "left,right"));
}

void tst_PageConstraint::describe_data()
{
    QTest::addColumn<ZRPageConstraint>("constraint");
    QTest::addColumn<QStringList>("pageTypeNames");
    QTest::addColumn<QStringList>("alignmentNames");
    // clang-format off
    QTest::newRow("all") << ZRPageConstraint() << QStringList() << QStringList();
    QTest::newRow("one of each") << constraint("content", "left") << QStringList { "content" } << QStringList { "left" };
    QTest::newRow("compound") << constraint("covers", "top,bottom") << QStringList { "spine", "cover_front", "cover_back", "cover_flap",
                                 "cover_inside_front", "cover_inside_back", "wrap_back", "wrap_spine", "wrap_flap", "wrap_front" }
                              << QStringList { "top", "bottom" };
    // clang-format on
}

void tst_PageConstraint::describe()
{
    QFETCH(ZRPageConstraint, constraint);
    QFETCH(QStringList, pageTypeNames);
    QFETCH(QStringList, alignmentNames);

    const QString text = constraint.describe();
    QVERIFY2(
        QRegularExpression(QStringLiteral("^SeitenTypen: \\{[^}]*\\} Alignment \\{[^}]*\\}$")).match(text).hasMatch(),
        qPrintable(text));
    QCOMPARE(describedNames(text, QStringLiteral("SeitenTypen:")),
        QSet<QString>(pageTypeNames.begin(), pageTypeNames.end()));
    QCOMPARE(
        describedNames(text, QStringLiteral("Alignment")), QSet<QString>(alignmentNames.begin(), alignmentNames.end()));
}

void tst_PageConstraint::toXmlWritesEachValue()
{
    QDomDocument document;
    QDomElement empty = document.createElement(QStringLiteral("constraint"));
    ZRPageConstraint().toXml(empty);
    QVERIFY(!empty.hasChildNodes());

    const ZRPageConstraint written = constraint("cover_front,content", "left,right");
    QDomElement element = document.createElement(QStringLiteral("constraint"));
    written.toXml(element);
    QCOMPARE(element.attributes().count(), 0);

    // read it back; page types come before alignments
    ZRPageConstraint read;
    QStringList tags;
    for (QDomElement child = element.firstChildElement(); !child.isNull(); child = child.nextSiblingElement()) {
        tags.append(child.tagName());
        if (child.tagName() == QLatin1String("pagetype"))
            read.addPageType(ZRPageType(child.text()));
        else if (child.tagName() == QLatin1String("intendedAlignment"))
            read.addIntendedAlignment(ZRPageAlignment(child.text()));
    }
    QCOMPARE(tags, QStringList({ "pagetype", "pagetype", "intendedAlignment", "intendedAlignment" }));
    QCOMPARE(read, written);
}

QTEST_GUILESS_MAIN(tst_PageConstraint)
#include "tst_pageconstraint.moc"
