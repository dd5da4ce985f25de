#include "ZRXMLLoader.h"

#include "ZRXMLDiagnostics.h"
#include "ZRXMLLimits.h"

#include <QDomDocument>
#include <QFile>
#include <QRegularExpression>
#include <QStringDecoder>
#include <QXmlStreamReader>

#include <algorithm>
#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

QString sizeLimitText()
{
    return QStringLiteral("larger than the limit of %1 bytes (maxDocumentSize)").arg(ZRXMLLimits::maxDocumentSize);
}

bool isAcceptableFile(const struct stat &status)
{
    return S_ISREG(status.st_mode) && status.st_size <= ZRXMLLimits::maxDocumentSize;
}

/**
 * The content of the regular file @p path (links followed), or an empty array for anything else: a
 * directory, FIFO, socket or device, a file beyond the size limit, or one that cannot be read.
 */
QByteArray readRegularFile(const QString &path, QString *problem)
{
    const QByteArray nativePath = QFile::encodeName(path);
    struct stat status;
    // Looked at before opening: opening a FIFO waits for a writer, opening a device may act on it.
    if (::stat(nativePath.constData(), &status) != 0) {
        *problem = QStringLiteral("cannot read the file: %1").arg(QString::fromLocal8Bit(strerror(errno)));
        return QByteArray();
    }
    if (!S_ISREG(status.st_mode)) {
        *problem = QStringLiteral("not a regular file");
        return QByteArray();
    }
    if (!isAcceptableFile(status)) {
        *problem = sizeLimitText();
        return QByteArray();
    }
    int fd;
    do {
        // Non-blocking, so a FIFO put in the file's place after the check cannot stall us.
        fd = ::open(nativePath.constData(), O_RDONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC);
    } while (fd < 0 && errno == EINTR);
    if (fd < 0) {
        *problem = QStringLiteral("cannot read the file: %1").arg(QString::fromLocal8Bit(strerror(errno)));
        return QByteArray();
    }

    QByteArray content;
    if (::fstat(fd, &status) == 0 && isAcceptableFile(status)) {
        // Reading up to one byte past the limit shows a file that has grown beyond it since the check.
        const qsizetype limit = ZRXMLLimits::maxDocumentSize + 1;
        content.resize(std::min<qsizetype>(status.st_size + 1, limit));
        qsizetype length = 0;
        while (length < limit) {
            if (length == content.size())
                content.resize(std::min<qsizetype>(content.size() * 2, limit));
            const ssize_t count = ::read(fd, content.data() + length, size_t(content.size() - length));
            if (count < 0 && errno == EINTR)
                continue;
            if (count <= 0) {
                if (count < 0)
                    length = 0;
                break;
            }
            length += count;
        }
        if (length > ZRXMLLimits::maxDocumentSize)
            *problem = sizeLimitText();
        content.truncate(length > ZRXMLLimits::maxDocumentSize ? 0 : length);
    }
    ::close(fd);
    return content;
}

template<typename Char> const Char *findChar(const Char *from, const Char *end, char c)
{
    return std::find(from, end, Char(c));
}

/** Where @p terminator ends, searching from @p from; @p end when it does not occur. */
template<typename Char> const Char *skipPast(const Char *from, const Char *end, const char *terminator, int length)
{
    const auto equal = [](Char a, char b) { return a == Char(b); };
    const Char *found = std::search(from, end, terminator, terminator + length, equal);
    return found == end ? end : found + length;
}

template<typename Char> bool startsWith(const Char *from, const Char *end, const char *prefix, int length)
{
    return end - from >= length
        && std::equal(prefix, prefix + length, from, [](char a, Char b) { return Char(a) == b; });
}

/** Why a document is refused. */
enum class Refusal
{
    None,
    Size,
    Attributes,
    Nodes,
    Depth,
    ValueLength,
    Declarations,
    NotWellFormed
};

/** Why a document was refused, and where. */
struct Outcome
{
    Refusal refusal = Refusal::None;
    QString message;
    int line = 0;
    int column = 0;
};

/** The limit a refusal is about, named as in ZRXMLLimits. */
QString refusalText(Refusal refusal)
{
    switch (refusal) {
    case Refusal::Size:
        return sizeLimitText();
    case Refusal::Attributes:
        return QStringLiteral("an element has more than %1 attributes (maxAttributes)").arg(ZRXMLLimits::maxAttributes);
    case Refusal::Nodes:
        return QStringLiteral("more than %1 nodes (maxNodes)").arg(ZRXMLLimits::maxNodes);
    case Refusal::Depth:
        return QStringLiteral("elements nested deeper than %1 levels (maxDepth)").arg(ZRXMLLimits::maxDepth);
    case Refusal::ValueLength:
        return QStringLiteral("a text or value longer than %1 characters (maxValueLength)")
            .arg(ZRXMLLimits::maxValueLength);
    case Refusal::Declarations:
        return QStringLiteral("a document type with declarations, which are not read");
    case Refusal::None:
    case Refusal::NotWellFormed:
        break;
    }
    return QString();
}

/** What the scan of the markup found: a refusal and where it was made, or a value that may be too long. */
struct Scan
{
    Refusal refusal = Refusal::None;
    qsizetype offset = 0;
    bool longValue = false;
};

template<typename Char> bool isBlank(const Char *from, const Char *to)
{
    return std::all_of(
        from, to, [](Char c) { return c == Char(' ') || c == Char('\t') || c == Char('\r') || c == Char('\n'); });
}

/**
 * Checks the limits on the markup without parsing it, before the parser builds anything. The stream
 * reader compares every attribute of an element with every other one before it reports the element,
 * so a tag with many thousands of them takes minutes; a document of millions of tiny elements takes
 * seconds and a gigabyte to build; destroying a DOM recurses once per level. Counted here: one node
 * per start tag, comment, CDATA section and processing instruction, one attribute per '=' outside
 * quotes, one level per start tag that is not closed at once, and a document type with an internal
 * subset that is not blank. A value's length in the markup is at least its length once decoded (no
 * entity that could expand is accepted), so only a value longer in the markup needs to be decoded to
 * be judged. In a well-formed document this sees the structure the parser sees; markup that is not
 * well-formed is left to the parser to refuse.
 */
template<typename Char> Scan scanMarkup(const Char *begin, const Char *end)
{
    Scan scan;
    const auto refuse = [&scan, begin](Refusal refusal, const Char *at) {
        scan.refusal = refusal;
        scan.offset = at - begin;
        return scan;
    };
    const auto measure = [&scan](const Char *from, const Char *to) {
        if (to - from > ZRXMLLimits::maxValueLength)
            scan.longValue = true;
    };
    qint64 nodes = 0;
    int depth = 0;
    const Char *p = begin;
    const Char *text = begin;
    while ((p = findChar(p, end, '<')) != end) {
        measure(text, p);
        if (++p == end)
            break;
        if (*p == '/') {
            --depth;
            text = p = findChar(p, end, '>');
            continue;
        }
        if (++nodes > ZRXMLLimits::maxNodes)
            return refuse(Refusal::Nodes, p);
        const Char *body = p;
        if (*p == '!') {
            if (startsWith(p, end, "!--", 3)) {
                p = skipPast(p + 3, end, "-->", 3);
                measure(body, p);
            } else if (startsWith(p, end, "![CDATA[", 8)) {
                p = skipPast(p + 8, end, "]]>", 3);
                measure(body, p);
            } else {
                // A document type declaration: its literals may hold '>' and '[', its internal subset declarations.
                while (p != end && *p != Char('>')) {
                    if (*p == Char('[')) {
                        const Char *close = findChar(p + 1, end, ']');
                        if (!isBlank(p + 1, close))
                            return refuse(Refusal::Declarations, p);
                        p = close;
                    } else if (*p == Char('"') || *p == Char('\'')) {
                        p = findChar(p + 1, end, char(*p));
                    }
                    if (p != end)
                        ++p;
                }
            }
        } else if (*p == '?') {
            p = skipPast(p + 1, end, "?>", 2);
            measure(body, p);
        } else {
            int attributes = 0;
            for (; p != end && *p != Char('>'); ++p) {
                if (*p == Char('"') || *p == Char('\'')) {
                    const Char *value = p;
                    p = findChar(p + 1, end, char(*p));
                    measure(value, p);
                    if (p == end)
                        break;
                } else if (*p == Char('=')) {
                    if (++attributes > ZRXMLLimits::maxAttributes)
                        return refuse(Refusal::Attributes, p);
                    if (++nodes > ZRXMLLimits::maxNodes)
                        return refuse(Refusal::Nodes, p);
                }
            }
            if (depth >= ZRXMLLimits::maxDepth)
                return refuse(Refusal::Depth, p == end ? p : p + 1);
            if (p != end && p[-1] != Char('/'))
                ++depth;
        }
        text = p;
    }
    measure(text, end);
    return scan;
}

/** The encoding that the XML declaration of @p content names; UTF-8 when it names none that is known. */
QStringConverter::Encoding declaredEncoding(const QByteArray &content)
{
    static const QRegularExpression declaration(QStringLiteral("^<\\?xml[^>]*encoding\\s*=\\s*[\"']([A-Za-z0-9._-]+)"));
    const QRegularExpressionMatch match = declaration.match(QString::fromLatin1(content.left(200)));
    if (!match.hasMatch())
        return QStringConverter::Utf8;
    return QStringConverter::encodingForName(match.captured(1).toLatin1().constData()).value_or(QStringConverter::Utf8);
}

/** The decoder for @p content: by its byte order mark or first character, else as its declaration says. */
QStringDecoder decoderFor(const QByteArray &content)
{
    const std::optional<QStringConverter::Encoding> encoding = QStringConverter::encodingForData(content, u'<');
    return QStringDecoder(encoding.value_or(declaredEncoding(content)));
}

Scan scanMarkup(const QByteArray &content)
{
    // Markup characters are single bytes in UTF-8 and in the 8-bit encodings; only documents in
    // UTF-16 or UTF-32 need decoding first.
    const std::optional<QStringConverter::Encoding> encoding = QStringConverter::encodingForData(content, u'<');
    switch (encoding.value_or(QStringConverter::Utf8)) {
    case QStringConverter::Utf16:
    case QStringConverter::Utf16LE:
    case QStringConverter::Utf16BE:
    case QStringConverter::Utf32:
    case QStringConverter::Utf32LE:
    case QStringConverter::Utf32BE:
        break;
    default:
        return scanMarkup(content.cbegin(), content.cend());
    }
    QStringDecoder decoder(*encoding);
    const QString text = decoder.decode(content);
    Scan scan = scanMarkup(text.utf16(), text.utf16() + text.size());
    if (scan.refusal != Refusal::None) {
        // The offset counts characters; the place is found in bytes below.
        QStringEncoder encoder(*encoding);
        scan.offset = QByteArray(encoder.encode(QStringView(text).first(scan.offset))).size();
    }
    return scan;
}

/** Line and column (both from 1) of the character at byte @p offset of @p content. */
std::pair<int, int> placeOf(const QByteArray &content, qsizetype offset)
{
    QStringDecoder decoder = decoderFor(content);
    const QString before = decoder.decode(QByteArrayView(content).first(std::min(offset, content.size())));
    const qsizetype lineStart = before.lastIndexOf(u'\n') + 1;
    return { int(before.count(u'\n')) + 1, int(before.size() - lineStart) + 1 };
}

/**
 * Decides the length limit on values exactly, for a document whose markup has a value longer than
 * the limit: its decoded text may still be within it. Text of blanks alone is layout and not held to it.
 */
Outcome checkValueLengths(const QByteArray &content)
{
    QXmlStreamReader reader(content);
    reader.setNamespaceProcessing(false);
    while (!reader.atEnd()) {
        qsizetype length = 0;
        switch (reader.readNext()) {
        case QXmlStreamReader::StartElement:
            for (const QXmlStreamAttribute &attribute : reader.attributes())
                length = std::max(length, attribute.value().size());
            break;
        case QXmlStreamReader::Characters:
            if (!reader.isWhitespace() && (reader.isCDATA() || !reader.text().trimmed().isEmpty()))
                length = reader.text().size();
            break;
        case QXmlStreamReader::Comment:
            length = reader.text().size();
            break;
        case QXmlStreamReader::ProcessingInstruction:
            length = reader.processingInstructionData().size();
            break;
        default:
            break;
        }
        if (length > ZRXMLLimits::maxValueLength) {
            return { Refusal::ValueLength, refusalText(Refusal::ValueLength), int(reader.lineNumber()),
                int(reader.columnNumber()) + 1 };
        }
    }
    return Outcome();
}

/**
 * The document of @p content, or a null one when it is refused; @p file names it in findings. Within
 * the limits it is the document that QDomDocument::setContent() makes without namespace processing.
 * With a diagnostics collector active, a refusal is reported, and the document's text is kept so
 * that findings can name the place of an attribute as well as that of an element.
 */
QDomDocument loadDocument(const QByteArray &content, const QString &file, const QString &readProblem)
{
    Outcome outcome;
    Scan scan;
    if (!readProblem.isEmpty()) {
        outcome = { Refusal::Size, readProblem };
    } else if (content.isEmpty()) {
        outcome = { Refusal::NotWellFormed, QStringLiteral("the file is empty") };
    } else if (content.size() > ZRXMLLimits::maxDocumentSize) {
        outcome = { Refusal::Size, refusalText(Refusal::Size) };
    } else if (scan = scanMarkup(content); scan.refusal != Refusal::None) {
        const auto [line, column] = placeOf(content, scan.offset);
        outcome = { scan.refusal, refusalText(scan.refusal), line, column };
    } else if (scan.longValue) {
        outcome = checkValueLengths(content);
    }

    QDomDocument document;
    if (outcome.refusal == Refusal::None
        && !document.setContent(content, &outcome.message, &outcome.line, &outcome.column)) {
        outcome.refusal = Refusal::NotWellFormed;
        ++outcome.column; // counted from 0 by the parser
        document = QDomDocument();
    }
    if (!ZRXMLDiagnostics::isActive())
        return document;
    if (document.isNull()) {
        ZRXMLFinding finding;
        finding.severity = ZRXMLFinding::Error;
        finding.rule = outcome.refusal == Refusal::NotWellFormed ? QStringLiteral("not-well-formed")
                                                                 : QStringLiteral("limit-exceeded");
        if (!readProblem.isEmpty())
            finding.rule = QStringLiteral("unreadable-file");
        finding.message = outcome.message;
        finding.file = file;
        finding.line = outcome.line;
        finding.column = outcome.column;
        ZRXMLDiagnostics::report(finding);
        return document;
    }
    ZRXMLDiagnostics::addSource(document, file, [content] {
        QStringDecoder decoder = decoderFor(content);
        return QString(decoder.decode(content));
    });
    return document;
}

} // namespace

QDomElement ZRXMLLoader::loadDocumentElement(const QFileInfo &file)
{
    return loadDocument(file).documentElement();
}

QDomElement ZRXMLLoader::loadDocumentElement(const QByteArray &content)
{
    return loadDocument(content).documentElement();
}

QDomDocument ZRXMLLoader::loadDocument(const QFileInfo &file)
{
    QString problem;
    const QByteArray content = readRegularFile(file.absoluteFilePath(), &problem);
    return ::loadDocument(content, file.filePath(), problem);
}

QDomDocument ZRXMLLoader::loadDocument(const QByteArray &content)
{
    return ::loadDocument(content, QString(), QString());
}
