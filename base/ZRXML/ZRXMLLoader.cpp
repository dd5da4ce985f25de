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

QString sizeLimitText();

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

/**
 * Refuses a start tag with more attributes than allowed, or a document with more nodes. The stream
 * reader compares every attribute of an element with every other one before it reports the element,
 * so a tag with many thousands of them takes minutes; and a document of millions of tiny elements
 * takes seconds and a gigabyte to build. Both are counted here without parsing: one node per start
 * tag, comment, CDATA section and processing instruction, one attribute per '=' outside quotes.
 * Markup that is not well-formed is left to the reader to refuse.
 */
template<typename Char> Refusal markupWithinLimits(const Char *p, const Char *end)
{
    qint64 nodes = 0;
    while ((p = findChar(p, end, '<')) != end) {
        if (++p == end)
            break;
        if (*p == '/') {
            p = findChar(p, end, '>');
            continue;
        }
        if (++nodes > ZRXMLLimits::maxNodes)
            return Refusal::Nodes;
        if (*p == '!') {
            if (startsWith(p, end, "!--", 3)) {
                p = skipPast(p + 3, end, "-->", 3);
            } else if (startsWith(p, end, "![CDATA[", 8)) {
                p = skipPast(p + 8, end, "]]>", 3);
            } else {
                // A document type declaration: its literals and its internal subset may hold '>'.
                while (p != end && *p != Char('>')) {
                    if (*p == Char('"') || *p == Char('\'') || *p == Char('['))
                        p = findChar(p + 1, end, *p == Char('[') ? ']' : char(*p));
                    if (p != end)
                        ++p;
                }
            }
        } else if (*p == '?') {
            p = skipPast(p + 1, end, "?>", 2);
        } else {
            int attributes = 0;
            for (; p != end && *p != Char('>'); ++p) {
                if (*p == Char('"') || *p == Char('\'')) {
                    p = findChar(p + 1, end, char(*p));
                    if (p == end)
                        break;
                } else if (*p == Char('=')) {
                    if (++attributes > ZRXMLLimits::maxAttributes)
                        return Refusal::Attributes;
                    if (++nodes > ZRXMLLimits::maxNodes)
                        return Refusal::Nodes;
                }
            }
        }
    }
    return Refusal::None;
}

Refusal markupWithinLimits(const QByteArray &content)
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
        return markupWithinLimits(content.cbegin(), content.cend());
    }
    QStringDecoder decoder(*encoding);
    const QString text = decoder.decode(content);
    return markupWithinLimits(text.utf16(), text.utf16() + text.size());
}

/** True for a document type without an internal subset, or with a blank one. */
bool isBareDocumentType(const QXmlStreamReader &reader)
{
    if (!reader.entityDeclarations().isEmpty() || !reader.notationDeclarations().isEmpty())
        return false;
    const QStringView declaration = reader.text();
    const qsizetype open = declaration.indexOf(u'[');
    if (open < 0)
        return true;
    const qsizetype close = declaration.lastIndexOf(u']');
    return close > open && declaration.sliced(open + 1, close - open - 1).trimmed().isEmpty();
}

/** The data of the "xml" processing instruction that stands for the XML declaration in the DOM. */
QString xmlDeclaration(const QXmlStreamReader &reader)
{
    QString data = QLatin1String("version='");
    data += reader.documentVersion();
    data += QLatin1Char('\'');
    if (!reader.documentEncoding().isEmpty()) {
        data += QLatin1String(" encoding='");
        data += reader.documentEncoding();
        data += QLatin1Char('\'');
    }
    if (reader.isStandaloneDocument())
        data += QLatin1String(" standalone='yes'");
    return data;
}

/**
 * Builds the DOM in the one pass of the stream reader that checks the limits, with the nodes that
 * QDomDocument::setContent() makes without namespace processing: blank text is dropped,
 * CDATA sections, comments, processing instructions and unresolved entity references are kept, the
 * XML declaration becomes an "xml" processing instruction. A refused document is dropped while it
 * is still shallow, as destroying a DOM recurses once per level.
 */
QDomDocument buildDocument(const QByteArray &content, Outcome &outcome)
{
    QXmlStreamReader reader(content);
    const auto refuse = [&reader, &outcome](Refusal refusal) {
        outcome.refusal = refusal;
        outcome.message = refusalText(refusal);
        outcome.line = int(reader.lineNumber());
        outcome.column = int(reader.columnNumber()) + 1;
        return QDomDocument();
    };
    reader.setNamespaceProcessing(false);
    QDomDocument document { QString() };
    QDomNode current = document;
    int depth = 0;
    while (!reader.atEnd()) {
        switch (reader.readNext()) {
        case QXmlStreamReader::StartDocument:
            if (!reader.documentVersion().isEmpty())
                document.appendChild(
                    document.createProcessingInstruction(QStringLiteral("xml"), xmlDeclaration(reader)));
            break;
        case QXmlStreamReader::DTD: {
            if (!isBareDocumentType(reader))
                return refuse(Refusal::Declarations);
            // The document type is fixed when a document is made; what came before it moves over.
            QDomDocument typed(QDomImplementation().createDocumentType(
                reader.dtdName().toString(), reader.dtdPublicId().toString(), reader.dtdSystemId().toString()));
            for (QDomNode node = document.firstChild(); !node.isNull(); node = node.nextSibling())
                typed.appendChild(typed.importNode(node, true));
            document = typed;
            current = document;
            break;
        }
        case QXmlStreamReader::StartElement: {
            if (++depth > ZRXMLLimits::maxDepth)
                return refuse(Refusal::Depth);
            QDomElement element = document.createElement(reader.qualifiedName().toString());
            const QXmlStreamAttributes attributes = reader.attributes();
            for (const QXmlStreamAttribute &attribute : attributes) {
                if (attribute.value().size() > ZRXMLLimits::maxValueLength)
                    return refuse(Refusal::ValueLength);
                element.setAttribute(attribute.qualifiedName().toString(), attribute.value().toString());
            }
            current.appendChild(element);
            current = element;
            break;
        }
        case QXmlStreamReader::EndElement:
            --depth;
            current = current.parentNode();
            break;
        case QXmlStreamReader::Characters:
            // Text of blanks alone is layout, also when written as character references.
            if (reader.isWhitespace() || (!reader.isCDATA() && reader.text().trimmed().isEmpty()))
                break;
            if (reader.text().size() > ZRXMLLimits::maxValueLength)
                return refuse(Refusal::ValueLength);
            if (reader.isCDATA())
                current.appendChild(document.createCDATASection(reader.text().toString()));
            else
                current.appendChild(document.createTextNode(reader.text().toString()));
            break;
        case QXmlStreamReader::Comment:
            if (reader.text().size() > ZRXMLLimits::maxValueLength)
                return refuse(Refusal::ValueLength);
            current.appendChild(document.createComment(reader.text().toString()));
            break;
        case QXmlStreamReader::ProcessingInstruction:
            if (reader.processingInstructionData().size() > ZRXMLLimits::maxValueLength)
                return refuse(Refusal::ValueLength);
            current.appendChild(document.createProcessingInstruction(
                reader.processingInstructionTarget().toString(), reader.processingInstructionData().toString()));
            break;
        case QXmlStreamReader::EntityReference:
            current.appendChild(document.createEntityReference(reader.name().toString()));
            break;
        default:
            break;
        }
    }
    if (reader.hasError()) {
        refuse(Refusal::NotWellFormed);
        outcome.message = reader.errorString();
        return QDomDocument();
    }
    return document;
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

/**
 * The document of @p content, or a null one when it is refused; @p file names it in findings. With
 * a diagnostics collector active, a refusal is reported, and the document is the one
 * QDomDocument::setContent() makes of the same content, which knows where its elements are.
 */
QDomDocument loadDocument(const QByteArray &content, const QString &file, const QString &readProblem)
{
    Outcome outcome;
    if (!readProblem.isEmpty())
        outcome = { Refusal::Size, readProblem };
    else if (content.isEmpty())
        outcome = { Refusal::NotWellFormed, QStringLiteral("the file is empty") };
    else if (content.size() > ZRXMLLimits::maxDocumentSize)
        outcome = { Refusal::Size, refusalText(Refusal::Size) };
    else if (const Refusal refusal = markupWithinLimits(content); refusal != Refusal::None)
        outcome = { refusal, refusalText(refusal) };
    QDomDocument document = outcome.message.isEmpty() ? buildDocument(content, outcome) : QDomDocument();
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
    QDomDocument positioned;
    if (!positioned.setContent(content))
        return document;
    const std::optional<QStringConverter::Encoding> encoding = QStringConverter::encodingForData(content, u'<');
    QStringDecoder decoder(encoding.value_or(declaredEncoding(content)));
    ZRXMLDiagnostics::addSource(positioned, file, decoder.decode(content));
    return positioned;
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
