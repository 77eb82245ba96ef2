#include "catalogues/Catalogue.h"

#include "core/Conversion.h"
#include "core/Failure.h"
#include "store/RecordStore.h"

namespace {

/// Puts an attribute's text into a field in the field's own kind.
struct Assign {
    QString text;

    void operator()(qint32* number) const { *number = Conversion::toLong(text); }
    void operator()(QString* words) const { *words = text; }
    void operator()(QVariant* date) const { *date = RecordStore::dateText(text); }
};

} // namespace

bool Catalogue::load(QStringView label, std::unique_ptr<cXMLHandler>& store, const QString& path) {
    return routine(label, false, [&](bool& result) {
        store = RecordStore::load(path);
        result = true;
    });
}

bool Catalogue::get(QStringView label, const std::unique_ptr<cXMLHandler>& store, qint32 key, Fields fields) {
    return routine(label, false, [&](bool& result) { result = read(store, key, fields); });
}

bool Catalogue::read(const std::unique_ptr<cXMLHandler>& store, qint32 key, Fields fields) {
    cXMLHandler& rows = RecordStore::opened(store);
    if (!rows.Find(fields.begin()->attribute, key)) {
        return false;
    }
    for (const Field& field : fields) {
        std::visit(Assign{rows.GetAttribute(field.attribute)}, field.target);
    }
    return true;
}
