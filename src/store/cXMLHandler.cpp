#include "store/cXMLHandler.h"

#include "core/Conversion.h"
#include "core/Failure.h"
#include "store/FileWriter.h"
#include "store/XmlText.h"

namespace {

bool isElement(const pugi::xml_node& node) {
    return node.type() == pugi::node_element;
}

/// The first element at or behind `node`; comments between records count as nothing.
pugi::xml_node elementFrom(pugi::xml_node node) {
    while (node && !isElement(node)) {
        node = node.next_sibling();
    }
    return node;
}

pugi::xml_node elementBackFrom(pugi::xml_node node) {
    while (node && !isElement(node)) {
        node = node.previous_sibling();
    }
    return node;
}

/// Child element `index` (from 0), or nothing.
pugi::xml_node childElement(const pugi::xml_node& parent, qint32 index) {
    pugi::xml_node child = elementFrom(parent.first_child());
    for (; child && index > 0; --index) {
        child = elementFrom(child.next_sibling());
    }
    return index < 0 ? pugi::xml_node() : child;
}

qint32 countOfElements(const pugi::xml_node& parent) {
    qint32 count = 0;
    for (pugi::xml_node child = elementFrom(parent.first_child()); child;
         child = elementFrom(child.next_sibling())) {
        ++count;
    }
    return count;
}

/// The place, or error 91 when it is nothing, as the use of a file that did not load.
const XmlElement& required(const XmlElement& element) {
    if (!element) {
        throw failure(ErrorNumber::ObjectNotSet);
    }
    return element;
}

/// What `run` finds with the compiled expression.
template<typename Run>
auto searched(const QString& expression, const Run& run) {
    try {
        return run(pugi::xpath_query(expression.toUtf8().constData()));
    } catch (const pugi::xpath_exception& invalid) {
        throw Failure{static_cast<qint32>(ErrorNumber::InvalidProcedureCall),
                      failure(ErrorNumber::InvalidProcedureCall).description + QStringLiteral(": ") +
                          QString::fromUtf8(invalid.what())};
    }
}

/// Removes an element with all below it, from its leaves on: the library would recurse once a level, and the
/// depth is the file's.
void removeTree(const pugi::xml_node& top) {
    pugi::xml_node node = top;
    while (node) {
        if (const pugi::xml_node child = node.first_child()) {
            node = child;
            continue;
        }
        pugi::xml_node parent = node.parent();
        const bool last = node == top;
        parent.remove_child(node);
        node = last ? pugi::xml_node() : parent;
    }
}

/// Callers write the literals of an expression in apostrophes.
QString withDoubleQuotes(QString expression) {
    return expression.replace(u'\'', u'"');
}

QString textOf(const pugi::xml_attribute& attribute) {
    return QString::fromUtf8(attribute.value());
}

/// All that an expression finds from `start`, in the order of the document.
std::vector<XmlElement> search(const XmlElement& start, const QString& expression) {
    const pugi::xml_node from = required(start).node;
    const auto nodes =
        searched(expression, [&](const pugi::xpath_query& query) { return query.evaluate_node_set(from); });
    std::vector<XmlElement> elements;
    elements.reserve(nodes.size());
    for (const pugi::xpath_node& each : nodes) {
        elements.push_back({start.tree, each.node()});
    }
    return elements;
}

} // namespace

bool cXMLHandler::LoadDocument(const std::optional<QString>& vFilename) {
    return routine(u"cXMLHandler.Load Document", false, [&](bool& result) {
        if (vFilename) {
            ExternalFileName = *vFilename;
        }
        if (ExternalFileName.isEmpty()) {
            return;
        }
        Dom = std::make_shared<pugi::xml_document>();
        if (!loadXmlFile(*Dom, ExternalFileName)) {
            return;
        }
        const pugi::xml_node root = Dom->document_element();
        SchemaNode = {Dom, childElement(root, 0)};
        SchemaAttributes = search(SchemaNode, QStringLiteral("//s:AttributeType"));
        FieldCount = static_cast<qint32>(SchemaAttributes.size());
        DataNode = {Dom, childElement(root, 1)};
        RecordCount = countOfElements(required(DataNode).node);
        if (RecordCount > 0) {
            CurrentNode = {Dom, childElement(DataNode.node, 0)};
        }
        result = true;
    });
}

bool cXMLHandler::SaveDocument(const std::optional<QString>& vFilename) {
    return routine(u"cXMLHandler.Save Document", false, [&](bool& result) {
        if (vFilename) {
            ExternalFileName = *vFilename;
        }
        if (!Dom) {
            throw failure(ErrorNumber::ObjectNotSet);
        }
        const std::optional<QByteArray> text = loadableFileText(*Dom);
        if (!text) {
            throw failure(ErrorNumber::InvalidFileFormat); // never write what could not be read again
        }
        writeOverFile(ExternalFileName, *text);
        result = true;
    });
}

XmlElement cXMLHandler::findFirst(const QString& expression) const {
    const XmlElement& data = required(DataNode);
    const pugi::xpath_node found =
        searched(expression, [&](const pugi::xpath_query& query) { return query.evaluate_node(data.node); });
    return {data.tree, found.node()};
}

bool cXMLHandler::moveTo(const XmlElement& target) {
    if (!target) {
        return false;
    }
    CurrentNode = target;
    return true;
}

bool cXMLHandler::Find(const QString& sAttributeName, const QVariant& vAttributeValue) {
    return routine(u"cXMLHandler.Find", false, [&](bool& result) {
        const QString value = Conversion::storedText(vAttributeValue);
        if (sAttributeName.isEmpty() || value.isEmpty()) {
            return;
        }
        result = moveTo(
            findFirst(QStringLiteral("//z:row[@%1 = '").arg(sAttributeName) + value + QStringLiteral("']")));
    });
}

bool cXMLHandler::AdvFind(const QString& sQueryExpression) {
    return routine(u"cXMLHandler.AdvFind", false,
                   [&](bool& result) { result = moveTo(findFirst(withDoubleQuotes(sQueryExpression))); });
}

bool cXMLHandler::Query(const QString& sQueryExpression) {
    return routine(u"cXMLHandler.Query", false, [&](bool& result) {
        ResultSet.clear();
        if (!Dom) {
            throw failure(ErrorNumber::ObjectNotSet);
        }
        // The schema element is where the query starts: its expressions begin with "//" and search the whole
        // document from anywhere.
        ResultNode = {Dom, childElement(Dom->document_element(), 0)};
        ResultSet = search(ResultNode, withDoubleQuotes(sQueryExpression));
        ResultCount = static_cast<qint32>(ResultSet.size());
        result = true;
    });
}

std::optional<qint32> cXMLHandler::GetMax(const QString& sColumnName) {
    return routine(u"cXMLHandler.Get Max", std::optional<qint32>(), [&](std::optional<qint32>& result) {
        const QByteArray column = sColumnName.toUtf8();
        std::optional<qint32> largest; // handed out only when no record failed
        for (pugi::xml_node record = elementFrom(required(DataNode).node.first_child()); record;
             record = elementFrom(record.next_sibling())) {
            const pugi::xml_attribute attribute = record.attribute(column.constData());
            if (!largest && !attribute) {
                throw failure(ErrorNumber::InvalidUseOfNull);
            }
            const QString value = textOf(attribute);
            if (!largest || (Conversion::isNumeric(value) && Conversion::toDouble(value) > *largest)) {
                largest = Conversion::toLong(value);
            }
        }
        result = largest;
    });
}

bool cXMLHandler::AddNew() {
    return routine(u"cXMLHandler.Add New", false, [&](bool& result) {
        const XmlElement& data = required(DataNode);
        CurrentNode.clear();
        CurrentNode = {data.tree, pugi::xml_node(data.node).append_child("z:row")};
        result = static_cast<bool>(CurrentNode);
    });
}

void cXMLHandler::removeRecord(const XmlElement& record) {
    if (record.node.parent() != required(DataNode).node) {
        throw failure(ErrorNumber::InvalidProcedureCall); // it was removed before
    }
    // What still refers to the record goes on seeing it, outside the document.
    XmlElement removed = {std::make_shared<pugi::xml_document>(), {}};
    removed.node = removed.tree->append_copy(record.node);
    const pugi::xml_node old = record.node;
    const auto follow = [&](XmlElement& element) {
        if (element.node == old) {
            element = removed;
        }
    };
    follow(ResultNode);
    follow(CurrentNode);
    for (XmlElement& element : ResultSet) {
        follow(element);
    }
    removeTree(old);
    --RecordCount;
}

bool cXMLHandler::Delete(bool vResult) {
    return routine(u"cXMLHandler.Delete", false, [&](bool& result) {
        const XmlElement record = required(chosen(vResult));
        if (!vResult && !MoveNext()) {
            MovePrevious();
        }
        removeRecord(record);
        result = true;
    });
}

QString cXMLHandler::GetSchema(qint32 lIndex) {
    return routine(u"cXMLHandler.Get Schema", QString(), [&](QString& result) {
        if (lIndex >= 0 && static_cast<std::size_t>(lIndex) < SchemaAttributes.size()) {
            result = textOf(SchemaAttributes[static_cast<std::size_t>(lIndex)].node.attribute("name"));
        }
    });
}

XmlElement& cXMLHandler::chosen(bool result) {
    return result ? ResultNode : CurrentNode;
}

QString cXMLHandler::GetAttribute(const QString& sAttribute, bool vResult) {
    return routine(u"cXMLHandler.Get Attribute", QString(), [&](QString& result) {
        result = textOf(chosen(vResult).node.attribute(sAttribute.toUtf8().constData()));
    });
}

bool cXMLHandler::SetAttribute(const QString& sAttribute, const QVariant& vNewValue, bool vResult) {
    return routine(u"cXMLHandler.Set Attribute", false, [&](bool& result) {
        pugi::xml_node node = chosen(vResult).node;
        if (!node) {
            return;
        }
        const QString text = Conversion::storedText(vNewValue);
        const QByteArray name = sAttribute.toUtf8();
        if (!isXmlName(name)) {
            throw failure(ErrorNumber::InvalidProcedureCall);
        }
        pugi::xml_attribute attribute = node.attribute(name.constData());
        if (!attribute) {
            attribute = node.append_attribute(name.constData());
        }
        attribute.set_value(storableText(text).toUtf8().constData());
        result = textOf(attribute) == text;
    });
}

bool cXMLHandler::DeleteAttribute(const QString& sAttribute, bool vResult) {
    return routine(u"cXMLHandler.Delete Attribute", false, [&](bool& result) {
        pugi::xml_node node = required(chosen(vResult)).node;
        const QByteArray name = sAttribute.toUtf8();
        node.remove_attribute(name.constData());
        result = !node.attribute(name.constData());
    });
}

bool cXMLHandler::GetResult(qint32 lIndex) {
    return routine(u"cXMLHandler.Get Result", false, [&](bool& result) {
        ResultNode.clear();
        if (lIndex >= 0 && static_cast<std::size_t>(lIndex) < ResultSet.size()) {
            ResultNode = ResultSet[static_cast<std::size_t>(lIndex)];
            result = static_cast<bool>(ResultNode);
        }
    });
}

bool cXMLHandler::MoveFirst() {
    return routine(u"cXMLHandler.Move First", false, [&](bool& result) {
        result = moveTo({required(DataNode).tree, childElement(DataNode.node, 0)});
    });
}

bool cXMLHandler::MoveLast() {
    return routine(u"cXMLHandler.Move Last", false, [&](bool& result) {
        result = moveTo({required(DataNode).tree, childElement(DataNode.node, RecordCount - 1)});
    });
}

bool cXMLHandler::MoveNext() {
    return routine(u"cXMLHandler.Move Next", false, [&](bool& result) {
        const XmlElement& current = required(CurrentNode);
        result = moveTo({current.tree, elementFrom(current.node.next_sibling())});
    });
}

bool cXMLHandler::MovePrevious() {
    return routine(u"cXMLHandler.Move Previous", false, [&](bool& result) {
        const XmlElement& current = required(CurrentNode);
        result = moveTo({current.tree, elementBackFrom(current.node.previous_sibling())});
    });
}

QString cXMLHandler::XML() const {
    QString text;
    passOver([&] {
        if (Dom) {
            text = QString::fromUtf8(fileText(*Dom));
        }
    });
    return text;
}

void cXMLHandler::XML(const QString& text) {
    passOver([&] {
        if (!Dom) {
            return; // there is no document to load into
        }
        Dom = std::make_shared<pugi::xml_document>();
        loadXmlText(*Dom, text.toUtf8());
    });
}
