#include "ZRXMLLoader.h"

#include "ZRXMLLimits.h"

#include <QDomDocument>
#include <QFile>
#include <QStringDecoder>
#include <QXmlStreamReader>

#include <algorithm>
#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

bool isAcceptableFile(const struct stat &status)
{
    return S_ISREG(status.st_mode) && status.st_size <= ZRXMLLimits::maxDocumentSize;
}

/**
 * The content of the regular file @p path (links followed), or an empty array for anything else: a
 * directory, FIFO, socket or device, a file beyond the size limit, or one that cannot be read.
 */
QByteArray readRegularFile(const QString &path)
{
    const QByteArray nativePath = QFile::encodeName(path);
    struct stat status;
    // Looked at before opening: opening a FIFO waits for a writer, opening a device may act on it.
    if (::stat(nativePath.constData(), &status) != 0 || !isAcceptableFile(status))
        return QByteArray();
    int fd;
    do {
        // Non-blocking, so a FIFO put in the file's place after the check cannot stall us.
        fd = ::open(nativePath.constData(), O_RDONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC);
    } while (fd < 0 && errno == EINTR);
    if (fd < 0)
        return QByteArray();

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

/**
 * False when a start tag has more attributes than allowed, or the document more nodes. The stream
 * reader compares every attribute of an element with every other one before it reports the element,
 * so a tag with many thousands of them takes minutes; and a document of millions of tiny elements
 * takes seconds and a gigabyte to build. Both are counted here without parsing: one node per start
 * tag, comment, CDATA section and processing instruction, one attribute per '=' outside quotes.
 * Markup that is not well-formed is left to the reader to refuse.
 */
template<typename Char> bool markupWithinLimits(const Char *p, const Char *end)
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
            return false;
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
                } else if (*p == Char('=')
                    && (++attributes > ZRXMLLimits::maxAttributes || ++nodes > ZRXMLLimits::maxNodes)) {
                    return false;
                }
            }
        }
    }
    return true;
}

bool markupWithinLimits(const QByteArray &content)
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
QDomDocument buildDocument(const QByteArray &content)
{
    QXmlStreamReader reader(content);
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
                return QDomDocument();
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
                return QDomDocument();
            QDomElement element = document.createElement(reader.qualifiedName().toString());
            const QXmlStreamAttributes attributes = reader.attributes();
            for (const QXmlStreamAttribute &attribute : attributes) {
                if (attribute.value().size() > ZRXMLLimits::maxValueLength)
                    return QDomDocument();
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
                return QDomDocument();
            if (reader.isCDATA())
                current.appendChild(document.createCDATASection(reader.text().toString()));
            else
                current.appendChild(document.createTextNode(reader.text().toString()));
            break;
        case QXmlStreamReader::Comment:
            if (reader.text().size() > ZRXMLLimits::maxValueLength)
                return QDomDocument();
            current.appendChild(document.createComment(reader.text().toString()));
            break;
        case QXmlStreamReader::ProcessingInstruction:
            if (reader.processingInstructionData().size() > ZRXMLLimits::maxValueLength)
                return QDomDocument();
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
    if (reader.hasError())
        return QDomDocument();
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
    return loadDocument(readRegularFile(file.absoluteFilePath()));
}

QDomDocument ZRXMLLoader::loadDocument(const QByteArray &content)
{
    if (content.isEmpty() || content.size() > ZRXMLLimits::maxDocumentSize || !markupWithinLimits(content))
        return QDomDocument();
    return buildDocument(content);
}
