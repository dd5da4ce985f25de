#ifndef ZRBENCH_CATALOGUEGENERATOR_H
#define ZRBENCH_CATALOGUEGENERATOR_H

#include <QByteArray>
#include <QString>
#include <QtGlobal>

/**
 * Synthetic product catalogues for the benchmarks: every file uses the whole description format
 * (product attributes, pages, classification, surroundings with spirals and holes, 20 to 36 default
 * templates, redirects, extra production pages, editor abilities with jig categories, variants,
 * barcodes and a 3D preview) and is 6 to 8 KB long, like the files of a real catalogue.
 *
 * The output depends only on the file number, never on the clock, the locale or the platform, so
 * two runs, or two machines, read exactly the same bytes.
 */
namespace CatalogueGenerator {

/** The generator's revision; a catalogue written by another revision is written again. */
constexpr int revision = 1;

/** The product type name of file @p index ("bench_photobook_00042"). */
QString productName(int index);

/** The file name of file @p index inside a catalogue directory. */
QString fileName(int index);

/** The complete description file number @p index, UTF-8 encoded. */
QByteArray productFile(int index);

struct Catalogue
{
    QString directory;
    int files = 0;
    qint64 bytes = 0;
};

/**
 * Makes @p directory hold exactly the files 0 to @p count - 1 (and a stamp file that does not end
 * in ".xml"). A directory whose stamp shows the same count and revision is reused as it is; any
 * other ".xml" file in it is removed. Returns a catalogue with 0 files when it cannot write.
 */
Catalogue ensureCatalogue(const QString &directory, int count);

} // namespace CatalogueGenerator

#endif
