// The record store on files of any content, with any values written into them.

#include "FuzzWorld.h"
#include "store/XmlText.h"
#include "store/cXMLHandler.h"

#include <QFile>

namespace {

void write(const QString& path, const QByteArray& content) {
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size()) {
        broken(QStringLiteral("the target's own file is written"));
    }
}

QByteArray read(const QString& path) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        broken(QStringLiteral("a saved file can be opened"));
    }
    return file.readAll();
}

/// One of the operations that records and catalogues perform.
void operate(cXMLHandler& store, FuzzInput& input) {
    constexpr std::uint8_t operations = 12;
    const std::uint8_t chosen = input.byte();
    const bool onResult = (chosen & 0x80U) != 0;
    switch (chosen % operations) {
    case 0:
        store.MoveFirst();
        break;
    case 1:
        store.MoveLast();
        break;
    case 2:
        store.MoveNext();
        break;
    case 3:
        store.MovePrevious();
        break;
    case 4:
        store.AddNew();
        break;
    case 5:
        store.Delete(onResult);
        break;
    case 6:
        store.Find(input.text(), input.text());
        break;
    case 7:
        store.Query(input.text());
        break;
    case 8:
        store.GetResult(static_cast<qint32>(static_cast<std::int8_t>(input.byte())));
        break;
    case 9:
        store.GetMax(input.text());
        break;
    case 10:
        store.DeleteAttribute(input.text(), onResult);
        break;
    default: {
        const QString name = input.text();
        const QString value = input.text();
        if (store.SetAttribute(name, value, onResult) && store.GetAttribute(name, onResult) != value) {
            broken(QStringLiteral("an attribute that was written reads back"));
        }
    }
    }
}

/// What a file holds: the values of all records, in order.
QStringList valuesOf(const cXMLHandler& store) {
    QStringList values;
    for (const pugi::xml_node& record : store.DataNode.node.children()) {
        for (const pugi::xml_attribute& attribute : record.attributes()) {
            values << QString::fromUtf8(attribute.name()) << QString::fromUtf8(attribute.value());
        }
    }
    return values;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const FuzzWorld world;
    const QString path = world.file(QStringLiteral("Records.xml"));

    FuzzInput input(data, size);
    constexpr int mostOperations = 16;
    const int operations = input.byte() % mostOperations;
    // The operations stand at the end of what the length byte counts, the file is all behind them.
    FuzzInput steps = [&] {
        const QString script = QString::fromLatin1(input.text().toLatin1());
        static QByteArray bytes;
        bytes = script.toLatin1();
        return FuzzInput(reinterpret_cast<const std::uint8_t*>(bytes.constData()),
                         static_cast<std::size_t>(bytes.size()));
    }();
    write(path, input.rest());

    cXMLHandler store;
    if (!store.LoadDocument(path)) {
        return 0;
    }
    for (int i = 0; i < operations; ++i) {
        operate(store, steps);
    }
    const QByteArray before = read(path);
    const QStringList values = valuesOf(store);
    if (!store.SaveDocument()) {
        if (read(path) != before) {
            broken(QStringLiteral("a refused save leaves the file"));
        }
        return 0;
    }
    cXMLHandler again;
    if (!again.LoadDocument(path)) {
        broken(QStringLiteral("what was saved loads again"));
    }
    if (valuesOf(again) != values) {
        broken(QStringLiteral("what was saved reads back"));
    }
    return 0;
}
