#ifndef ZRXMLLIMITS_H
#define ZRXMLLIMITS_H

#include <QtGlobal>

/**
 * Bounds on the XML documents that ZRXMLLoader accepts, and on what their values may ask for. Every
 * file the editor reads is small and flat; a document beyond any bound is refused as a whole (the
 * loader gives a null element) before it can exhaust the stack, the memory or the time of the
 * process. A bare document type declaration ("<!DOCTYPE TS>") is accepted, an internal subset with
 * any declaration in it is not. A value beyond its bound behaves like a broken one.
 */
namespace ZRXMLLimits {
/** Largest document, in bytes; a file is measured before it is opened and read no further. */
constexpr qint64 maxDocumentSize = 16 * 1024 * 1024;
/** Deepest nesting of elements; the document element is at depth 1. */
constexpr int maxDepth = 256;
/** Most attributes on one element. */
constexpr int maxAttributes = 1024;
/** Longest text, CDATA section, comment, processing instruction data or attribute value, in UTF-16 units. */
constexpr qsizetype maxValueLength = 1024 * 1024;
/**
 * Most nodes in one document: elements, attributes, comments, CDATA sections and processing
 * instructions, counted before the document is built. The largest sample or generated product file
 * has about 500, a translation file about 6 per message.
 */
constexpr qint64 maxNodes = 100000;

/**
 * Most pages a page list, a list of integers or the content redirects of one product expand to; a
 * list beyond it is refused as a whole. Far more than any product has.
 */
constexpr int maxListPages = 10000;
/** Most pixels of an image drawn from numbers in a file (a spiral strip, a hook): 64 MiB at 32 bits. */
constexpr qint64 maxImagePixels = 16 * 1024 * 1024;
} // namespace ZRXMLLimits

#endif
