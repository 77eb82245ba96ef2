#pragma once

#include "store/cXMLHandler.h"

#include <QString>
#include <QStringView>
#include <QVariant>

#include <initializer_list>
#include <memory>
#include <variant>

/// The engine that all catalogues share. A catalogue is a buffer for one row of a read-only reference file:
/// it loads its file when it is created, and fills its public fields from the row of a key.
namespace Catalogue {

/// A field of a row and where its value goes: a whole number, a text, or a date, which is kept as a text
/// that the date conversions read.
struct Field {
    QString attribute;
    std::variant<qint32*, QString*, QVariant*> target;
};

/// The fields of a catalogue in their reading order; the first one is the key.
using Fields = std::initializer_list<Field>;

/// The load routine of a catalogue: puts a fresh store on the file into `store`. True also when the file is
/// missing or damaged, which shows itself at the first look-up.
bool load(QStringView label, std::unique_ptr<cXMLHandler>& store, const QString& path);

/// The get routine of a catalogue: finds the first row with this key and reads its fields in order. Without
/// such a row the result is false and the fields keep what they held. A number that does not convert is
/// reported, and the fields before it stay filled. The store's cursor stays on the row.
bool get(QStringView label, const std::unique_ptr<cXMLHandler>& store, qint32 key, Fields fields);

/// The same as a step inside a labelled routine, which a failure leaves.
bool read(const std::unique_ptr<cXMLHandler>& store, qint32 key, Fields fields);

} // namespace Catalogue
