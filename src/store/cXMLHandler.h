#pragma once

#include <QString>
#include <QVariant>
#include <pugixml.hpp>

#include <memory>
#include <optional>
#include <vector>

/// A place in a record document: a node together with the tree that it belongs to, so that it stays valid
/// when the document that it came from is replaced or the record is removed from its list.
struct XmlElement {
    std::shared_ptr<pugi::xml_document> tree;
    pugi::xml_node node;

    [[nodiscard]] explicit operator bool() const { return static_cast<bool>(node); }
    [[nodiscard]] bool operator==(const XmlElement& other) const { return node == other.node; }
    void clear() { *this = {}; }
};

/// One XML record file: the whole document in memory, a cursor on one record, attribute reads and writes,
/// queries, and the way back to disk. It is the only code that touches stored data.
///
/// The file is a persisted rowset: the root's first element is the schema, with one `s:AttributeType` a
/// field, its second one the data, whose elements are the records (`z:row`) with the fields as attributes.
/// Values are text; callers convert. Comments, processing instructions and an unread document type are kept
/// on save and count as nothing. Document types and entities are never expanded.
///
/// No operation throws; a failure is reported under the operation's label, and the operation returns false,
/// the empty text or nothing. Where `vResult` is true an operation works on `ResultNode`, otherwise on
/// `CurrentNode`.
class cXMLHandler {
public:
    /// The whole document; nothing before the first load.
    std::shared_ptr<pugi::xml_document> Dom;
    /// The data element.
    XmlElement DataNode;
    /// The record that the last `GetResult` selected; the schema element right after a `Query`.
    XmlElement ResultNode;
    XmlElement SchemaNode;
    /// The records that the last `Query` found.
    std::vector<XmlElement> ResultSet;
    /// All `s:AttributeType` elements.
    std::vector<XmlElement> SchemaAttributes;
    /// The cursor.
    XmlElement CurrentNode;
    /// Number of records at load, less one for each `Delete`. `AddNew` does not raise it, on purpose.
    qint32 RecordCount = 0;
    qint32 ResultCount = 0;
    qint32 FieldCount = 0;
    /// Full path of the file; empty until set.
    QString ExternalFileName;

    /// Loads the file and puts the cursor on its first record. A file that is missing or does not parse
    /// gives false without a report; the other fields then keep what they held.
    bool LoadDocument(const std::optional<QString>& vFilename = std::nullopt);

    /// Writes the whole document straight over the file. See FileWriter.h for what a crash can leave.
    bool SaveDocument(const std::optional<QString>& vFilename = std::nullopt);

    /// Moves the cursor to the first record whose attribute equals the value as text. The value is not
    /// escaped: one that holds an apostrophe is an invalid expression and is reported.
    bool Find(const QString& sAttributeName, const QVariant& vAttributeValue);

    /// The same with an expression of the caller's, literals in apostrophes.
    bool AdvFind(const QString& sQueryExpression);

    /// Collects all records of an expression; true also when there are none.
    bool Query(const QString& sQueryExpression);

    /// The largest value of a numeric field, or nothing when the file holds no record.
    std::optional<qint32> GetMax(const QString& sColumnName);

    /// Appends an empty record and puts the cursor on it.
    bool AddNew();

    /// Removes a record in memory; the cursor moves to the next one, or to the one before.
    bool Delete(bool vResult = false);

    /// The name of field `lIndex`, counted from 0.
    QString GetSchema(qint32 lIndex);

    /// An attribute's text; empty when the record does not carry it.
    QString GetAttribute(const QString& sAttribute, bool vResult = false);

    /// Writes an attribute in the value's stored text form. True when it reads back as that.
    bool SetAttribute(const QString& sAttribute, const QVariant& vNewValue, bool vResult = false);

    bool DeleteAttribute(const QString& sAttribute, bool vResult = false);

    /// Selects entry `lIndex` (from 0) of the last query as `ResultNode`.
    bool GetResult(qint32 lIndex);

    bool MoveFirst();
    bool MoveLast();
    bool MoveNext();
    bool MovePrevious();

    /// The document's text. A failure gives the empty text, without a report.
    [[nodiscard]] QString XML() const;

    /// Replaces the document by a text. The other fields still refer to the old tree; failures are ignored.
    void XML(const QString& text);

private:
    [[nodiscard]] XmlElement& chosen(bool result);
    bool moveTo(const XmlElement& target);
    void removeRecord(const XmlElement& record);
    [[nodiscard]] XmlElement findFirst(const QString& expression) const;
};
