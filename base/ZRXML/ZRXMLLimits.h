#ifndef ZRXMLLIMITS_H
#define ZRXMLLIMITS_H

#include <QtGlobal>

/**
 * Bounds on the XML documents that ZRXMLLoader accepts. Every file the editor reads is small and
 * flat; a document beyond any bound is refused as a whole (the loader gives a null element) before
 * it can exhaust the stack, the memory or the time of the process. A bare document type
 * declaration ("<!DOCTYPE TS>") is accepted, an internal subset with any declaration in it is not.
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
} // namespace ZRXMLLimits

#endif
