#include "ZRXMLDiagnostics.h"

#include <QDomNamedNodeMap>
#include <QStringTokenizer>

#include <algorithm>
#include <functional>
#include <utility>
#include <vector>

namespace {
thread_local ZRXMLDiagnostics *activeCollector = nullptr;

/** The edit distance of @p a and @p b, a swap of two neighbours counting as one edit. */
int editDistance(const QString &a, const QString &b)
{
    const qsizetype n = a.size();
    const qsizetype m = b.size();
    std::vector<std::vector<int>> d(size_t(n + 1), std::vector<int>(size_t(m + 1)));
    for (qsizetype i = 0; i <= n; ++i)
        d[i][0] = int(i);
    for (qsizetype j = 0; j <= m; ++j)
        d[0][j] = int(j);
    for (qsizetype i = 1; i <= n; ++i) {
        for (qsizetype j = 1; j <= m; ++j) {
            const int cost = a.at(i - 1) == b.at(j - 1) ? 0 : 1;
            d[i][j] = std::min({ d[i - 1][j] + 1, d[i][j - 1] + 1, d[i - 1][j - 1] + cost });
            if (i > 1 && j > 1 && a.at(i - 1) == b.at(j - 2) && a.at(i - 2) == b.at(j - 1))
                d[i][j] = std::min(d[i][j], d[i - 2][j - 2] + 1);
        }
    }
    return d[n][m];
}
} // namespace

class ZRXMLDiagnostics::Private
{
public:
    struct Source
    {
        QDomDocument document;
        QString file;
        /** Gives the text; called when a finding first needs it, as most documents have none. */
        std::function<QString()> decode;
        QString text;
        QList<qsizetype> lineStarts;
    };

    const Source *sourceOf(const QDomNode &node)
    {
        const QDomDocument document = node.ownerDocument();
        for (Source &source : sources) {
            if (source.document != document)
                continue;
            if (source.decode) {
                source.text = std::exchange(source.decode, nullptr)();
                for (qsizetype i = source.text.indexOf(u'\n'); i >= 0; i = source.text.indexOf(u'\n', i + 1))
                    source.lineStarts.append(i + 1);
            }
            return &source;
        }
        return nullptr;
    }

    QList<ZRXMLFinding> findings;
    QList<Source> sources;
    ZRXMLDiagnostics *previous = nullptr;
};

QString ZRXMLFinding::severityName(Severity severity)
{
    switch (severity) {
    case Error:
        return QStringLiteral("error");
    case Warning:
        return QStringLiteral("warning");
    case Note:
        break;
    }
    return QStringLiteral("note");
}

bool ZRXMLFinding::operator==(const ZRXMLFinding &other) const
{
    return severity == other.severity && rule == other.rule && message == other.message
        && suggestion == other.suggestion && file == other.file && line == other.line && column == other.column;
}

ZRXMLDiagnostics::ZRXMLDiagnostics()
    : d(std::make_unique<Private>())
{
    d->previous = activeCollector;
    activeCollector = this;
}

ZRXMLDiagnostics::~ZRXMLDiagnostics()
{
    activeCollector = d->previous;
}

bool ZRXMLDiagnostics::isActive()
{
    return activeCollector != nullptr;
}

void ZRXMLDiagnostics::report(ZRXMLFinding::Severity severity, const QString &rule, const QString &message,
    const QDomNode &node, const QString &suggestion)
{
    if (!activeCollector)
        return;
    ZRXMLFinding finding = locate(node);
    finding.severity = severity;
    finding.rule = rule;
    finding.message = message;
    finding.suggestion = suggestion;
    activeCollector->d->findings.append(finding);
}

void ZRXMLDiagnostics::report(const ZRXMLFinding &finding)
{
    if (activeCollector)
        activeCollector->d->findings.append(finding);
}

void ZRXMLDiagnostics::checkNames(
    const QDomElement &element, const QStringList &attributes, const QStringList &children)
{
    if (!activeCollector || element.isNull())
        return;
    checkAttributes(element, attributes);
    for (QDomElement child = element.firstChildElement(); !child.isNull(); child = child.nextSiblingElement()) {
        if (children.contains(child.tagName()))
            continue;
        const QString guess = closest(child.tagName(), children);
        report(ZRXMLFinding::Warning, QStringLiteral("unknown-element"),
            QStringLiteral("unknown element <%1> in <%2> is ignored").arg(child.tagName(), element.tagName()), child,
            guess.isEmpty() ? QString() : QStringLiteral("did you mean '%1'?").arg(guess));
    }
}

void ZRXMLDiagnostics::checkAttributes(const QDomElement &element, const QStringList &attributes)
{
    if (!activeCollector || element.isNull())
        return;
    const QDomNamedNodeMap map = element.attributes();
    // Finding an attribute by index walks the element's table from its start, so the common case,
    // where every attribute is a known one, is settled by looking the known names up instead.
    const int count = map.count();
    int known = 0;
    for (const QString &name : attributes) {
        if (map.contains(name))
            ++known;
    }
    if (known == count)
        return;
    for (int i = 0; i < count; ++i) {
        const QDomAttr attribute = map.item(i).toAttr();
        if (attributes.contains(attribute.name()))
            continue;
        const QString guess = closest(attribute.name(), attributes);
        report(ZRXMLFinding::Warning, QStringLiteral("unknown-attribute"),
            QStringLiteral("unknown attribute '%1' on <%2> is ignored").arg(attribute.name(), element.tagName()),
            attribute, guess.isEmpty() ? QString() : QStringLiteral("did you mean '%1'?").arg(guess));
    }
}

void ZRXMLDiagnostics::checkKeys(
    const QString &text, const QStringList &keys, const QString &what, const QDomNode &node, bool emptyPartsCount)
{
    if (!activeCollector || text.isEmpty())
        return;
    for (const QStringView part : qTokenize(text, u',')) {
        const QStringView key = part.trimmed();
        if (key.isEmpty() ? !emptyPartsCount : std::any_of(keys.cbegin(), keys.cend(), [key](const QString &known) {
                return key.compare(known, Qt::CaseInsensitive) == 0;
            }))
            continue;
        // A key that is the name of its own element (a jig type) needs no place of its own in the message.
        QString where;
        if (node.isAttr())
            where = QStringLiteral(" in '%1'").arg(node.nodeName());
        else if (node.isElement() && node.nodeName() != text)
            where = QStringLiteral(" in <%1>").arg(node.nodeName());
        const QString guess = closest(key.toString(), keys);
        QString suggestion;
        if (!guess.isEmpty())
            suggestion = QStringLiteral("did you mean '%1'?").arg(guess);
        else if (keys.size() <= 8)
            suggestion = QLatin1String("one of: ") + keys.join(QLatin1String(", "));
        report(ZRXMLFinding::Warning, QStringLiteral("unknown-key"),
            key.isEmpty() ? QStringLiteral("empty %1%2").arg(what, where)
                          : QStringLiteral("unknown %1 '%2'%3").arg(what, key, where),
            node, suggestion);
    }
}

QString ZRXMLDiagnostics::closest(const QString &name, const QStringList &candidates)
{
    const QString folded = name.toLower();
    QString best;
    int bestDistance = std::max<int>(1, int(folded.size() / 3)) + 1;
    for (const QString &candidate : candidates) {
        const int distance = editDistance(folded, candidate.toLower());
        if (distance < bestDistance) {
            best = candidate;
            bestDistance = distance;
        }
    }
    return best;
}

ZRXMLFinding ZRXMLDiagnostics::locate(const QDomNode &node)
{
    ZRXMLFinding finding;
    if (!activeCollector || node.isNull())
        return finding;
    const QDomAttr attribute = node.isAttr() ? node.toAttr() : QDomAttr();
    QDomNode element = attribute.isNull() ? node : QDomNode(attribute.ownerElement());
    while (!element.isNull() && !element.isElement())
        element = element.parentNode();
    const Private::Source *source = activeCollector->d->sourceOf(element.isNull() ? node : element);
    if (!source)
        return finding;
    finding.file = source->file;
    if (element.isNull() || element.lineNumber() < 1 || element.lineNumber() > source->lineStarts.size())
        return finding;

    // The parser gives the place just past a start tag; the tag itself starts at the '<' before it,
    // as no '<' can stand inside a tag.
    const QString &text = source->text;
    qsizetype end
        = std::min<qsizetype>(source->lineStarts.at(element.lineNumber() - 1) + element.columnNumber(), text.size());
    qsizetype start = text.lastIndexOf(u'<', std::max<qsizetype>(end - 1, 0));
    if (start < 0)
        return finding;
    qsizetype position = start;
    if (!attribute.isNull()) {
        const QString name = attribute.name();
        for (qsizetype i = start + 1; i < end; ++i) {
            const QChar c = text.at(i);
            if (c == u'"' || c == u'\'') {
                i = text.indexOf(c, i + 1);
                if (i < 0)
                    break;
                continue;
            }
            if (text.at(i - 1).isSpace() && QStringView(text).mid(i).startsWith(name)) {
                const QStringView rest = QStringView(text).mid(i + name.size()).trimmed();
                if (rest.startsWith(u'=')) {
                    position = i;
                    break;
                }
            }
        }
    }
    const auto line = std::upper_bound(source->lineStarts.cbegin(), source->lineStarts.cend(), position) - 1;
    finding.line = int(line - source->lineStarts.cbegin()) + 1;
    finding.column = int(position - *line) + 1;
    return finding;
}

QList<ZRXMLFinding> ZRXMLDiagnostics::findings() const
{
    return d->findings;
}

QList<QDomDocument> ZRXMLDiagnostics::documents() const
{
    QList<QDomDocument> result;
    for (const Private::Source &source : d->sources)
        result.append(source.document);
    return result;
}

QList<ZRXMLFinding> ZRXMLDiagnostics::takeFindings()
{
    d->sources.clear();
    return std::exchange(d->findings, {});
}

void ZRXMLDiagnostics::addSource(
    const QDomDocument &document, const QString &file, const std::function<QString()> &decode)
{
    if (activeCollector)
        activeCollector->d->sources.append({ document, file, decode, QString(), { 0 } });
}
