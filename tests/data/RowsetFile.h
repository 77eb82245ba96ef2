#pragma once

#include <pugixml.hpp>

#include <fstream>
#include <sstream>
#include <stdexcept>
#include <string>
#include <vector>

/// Path of a file in the data folder, by its name in that folder.
inline std::string dataPath(const std::string& name) {
    return std::string(TALIVANE_DATA_DIR) + "/" + name;
}

/// Whole text of a file in the data folder.
inline std::string dataText(const std::string& name) {
    std::ifstream file(dataPath(name), std::ios::binary);
    if (!file) {
        throw std::runtime_error("cannot read " + dataPath(name));
    }
    std::ostringstream text;
    text << file.rdbuf();
    return text.str();
}

/// One record of a rowset file. A missing field or a text that is no number throws, so that a damaged
/// table fails its test with the field's name.
class RowsetRow {
public:
    explicit RowsetRow(pugi::xml_node node)
        : node_(node) {}

    bool has(const std::string& field) const { return !node_.attribute(field.c_str()).empty(); }

    std::string text(const std::string& field) const {
        if (!has(field)) {
            throw std::runtime_error("no field " + field);
        }
        return node_.attribute(field.c_str()).value();
    }

    int number(const std::string& field) const {
        const std::string value = text(field);
        std::size_t length = 0;
        const int result = std::stoi(value, &length);
        if (length != value.size()) {
            throw std::runtime_error(field + " is no whole number: " + value);
        }
        return result;
    }

    double decimal(const std::string& field) const {
        const std::string value = text(field);
        std::size_t length = 0;
        const double result = std::stod(value, &length);
        if (length != value.size()) {
            throw std::runtime_error(field + " is no number: " + value);
        }
        return result;
    }

    bool flag(const std::string& field) const {
        const std::string value = text(field);
        if (value != "True" && value != "False") {
            throw std::runtime_error(field + " is no flag: " + value);
        }
        return value == "True";
    }

    std::vector<std::string> fields() const {
        std::vector<std::string> names;
        for (const pugi::xml_attribute& attribute : node_.attributes()) {
            names.emplace_back(attribute.name());
        }
        return names;
    }

private:
    pugi::xml_node node_;
};

/// A rowset file of the data folder, read without the program's own record store: these tests hold
/// whatever becomes of it.
class RowsetFile {
public:
    explicit RowsetFile(const std::string& name) {
        const pugi::xml_parse_result result = document_.load_file(dataPath(name).c_str());
        if (!result) {
            throw std::runtime_error(name + ": " + result.description());
        }
        for (const pugi::xml_node& row : data().children()) {
            rows_.emplace_back(row);
        }
    }

    pugi::xml_node root() const { return document_.document_element(); }
    pugi::xml_node schema() const { return root().first_child(); }
    pugi::xml_node data() const { return schema().next_sibling(); }
    const std::vector<RowsetRow>& rows() const& { return rows_; }
    // Rows live in their file: none may be taken from a temporary.
    const std::vector<RowsetRow>& rows() const&& = delete;

    std::vector<std::string> schemaFields() const {
        std::vector<std::string> names;
        for (const pugi::xml_node& field : schema().first_child().children("s:AttributeType")) {
            names.emplace_back(field.attribute("name").value());
        }
        return names;
    }

    /// The first record whose field holds this number: the rule by which the program looks it up.
    const RowsetRow& row(const std::string& keyField, int key) const {
        for (const RowsetRow& candidate : rows_) {
            if (candidate.number(keyField) == key) {
                return candidate;
            }
        }
        throw std::runtime_error("no row with " + keyField + " " + std::to_string(key));
    }

    /// The document as its parser would write it: what a first save by the program leaves.
    std::string savedText() const {
        std::ostringstream text;
        document_.save(text, "\t", pugi::format_indent | pugi::format_no_declaration);
        return text.str();
    }

private:
    pugi::xml_document document_;
    std::vector<RowsetRow> rows_;
};
