#pragma once

#include "core/Failure.h"
#include "store/cXMLHandler.h"

#include <limits>
#include <memory>

/// What every class that owns record files does with them. A class holds a file in a public field, null
/// until the file's first load.
namespace RecordStore {

/// A fresh store on the file at `path`. Whether the load succeeds is not asked: a file that is missing or
/// damaged shows itself as a report at its first use.
[[nodiscard]] inline std::unique_ptr<cXMLHandler> load(const QString& path) {
    auto store = std::make_unique<cXMLHandler>();
    store->LoadDocument(path);
    return store;
}

/// The store of a field; fails with error 91 when the file has not been loaded yet.
[[nodiscard]] inline cXMLHandler& opened(const std::unique_ptr<cXMLHandler>& field) {
    if (field == nullptr) {
        throw failure(ErrorNumber::ObjectNotSet);
    }
    return *field;
}

/// The key of a new record: one above the largest that the file holds, 1 in an empty file. Fails with
/// error 6 (Overflow) when there is none left.
[[nodiscard]] inline qint32 nextKey(cXMLHandler& store, const QString& keyAttribute) {
    const qint32 largest = store.GetMax(keyAttribute).value_or(0);
    if (largest == std::numeric_limits<qint32>::max()) {
        throw failure(ErrorNumber::Overflow);
    }
    return largest + 1;
}

/// A stored date as a text that the date conversions read: the rowset form 1965-02-04T00:00:00 with a blank
/// for every "T".
[[nodiscard]] inline QString dateText(QString stored) {
    return stored.replace(QLatin1Char('T'), QLatin1Char(' '));
}

} // namespace RecordStore
