#pragma once

#include <nlohmann/json.hpp>
#include <span>
#include <string>

namespace demo {

enum class FieldKind { text, date, time, number };

struct Field {
    const char* name;
    FieldKind kind = FieldKind::text;
    bool isRequired = false;
};

/// The records of one kind: JSON objects with an "id" (1 for the first) and the given fields.
class Collection {
public:
    /// The fields must outlive the collection.
    explicit Collection(std::span<const Field> fields);

    /// Adds a record made from the values that belong to a field; others are left out, absent
    /// ones get their kind's default. Numbers may come as text. Returns the record.
    /// Throws std::invalid_argument, with a sentence for people, when a value does not fit.
    const nlohmann::json& add(const nlohmann::json& values);

    /// The record, or null when there is none of this id.
    const nlohmann::json* find(int id) const;

    /// An array, oldest first.
    const nlohmann::json& records() const { return records_; }

    /// All records as comma-separated text with a header line and CRLF line ends.
    std::string commaSeparated() const;

private:
    std::span<const Field> fields_;
    nlohmann::json records_ = nlohmann::json::array();
};

} // namespace demo
