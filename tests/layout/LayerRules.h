// What the layout of the sources has to keep to, as checks on the text of one file: each answers
// with sentences that name the file and line, none when all is well. Used by LayersTest alone.
#pragma once

#include <QString>
#include <QStringList>

namespace neb::layout {

// From the lowest layer to the highest.
const QStringList& LayerOrder();
// The layer of a path below src ("support/windows/Form.h" is of "support/windows"); empty when
// it lies in none.
QString LayerOf(const QString& Path);

// The same text with comments blanked, and strings too unless they are wanted; lines stay.
QString WithoutComments(const QString& Text, bool KeepStrings);

// Includes that go against the order, that are not written from the root, or that bring windows
// into a layer that knows none.
QStringList IncludeFaults(const QString& Path, const QString& Text);
// Uses of file system classes outside the host file routines.
QStringList FileSystemFaults(const QString& Path, const QString& Text);
// Sources of more than 400 lines, headers of more than 150.
QStringList SizeFaults(const QString& Path, const QString& Text);
// The drawing of src/ in a fenced block has to name the layers that exist, in their order.
QStringList DrawingFaults(const QString& Document, const QStringList& Existing);

}  // namespace neb::layout
