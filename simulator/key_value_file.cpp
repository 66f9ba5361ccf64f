#include "key_value_file.h"

#include "os.h"

#include <algorithm>
#include <charconv>
#include <fstream>
#include <iterator>
#include <sstream>

namespace simulator {

namespace fs = std::filesystem;

std::string trimmed(const std::string& text) {
    const auto first = text.find_first_not_of(" \t\r");
    if (first == std::string::npos)
        return {};
    return text.substr(first, text.find_last_not_of(" \t\r") - first + 1);
}

std::optional<long long> parseNumber(const std::string& text) {
    const std::string digits = trimmed(text);
    long long number = 0;
    const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), number);
    if (error != std::errc() || end != digits.data() + digits.size() || number < 0)
        return std::nullopt;
    return number;
}

std::string KeyValues::text(const std::string& key, const std::string& otherwise) const {
    const auto found =
        std::find_if(entries_.begin(), entries_.end(), [&](const auto& entry) { return entry.first == key; });
    return found == entries_.end() ? otherwise : found->second;
}

long long KeyValues::number(const std::string& key, long long otherwise) const {
    return parseNumber(text(key)).value_or(otherwise);
}

bool KeyValues::yes(const std::string& key, bool otherwise) const {
    return has(key) ? trimmed(text(key)) == "yes" : otherwise;
}

bool KeyValues::has(const std::string& key) const {
    return std::any_of(entries_.begin(), entries_.end(),
                       [&](const auto& entry) { return entry.first == key; });
}

void KeyValues::set(const std::string& key, const std::string& value) {
    for (auto& [present, old] : entries_) {
        if (present == key) {
            old = value;
            return;
        }
    }
    entries_.emplace_back(key, value);
}

void KeyValues::set(const std::string& key, long long value) {
    set(key, std::to_string(value));
}

void KeyValues::merge(const KeyValues& other) {
    for (const auto& [key, value] : other.entries_)
        set(key, value);
}

std::string KeyValues::toText() const {
    std::string text;
    for (const auto& [key, value] : entries_)
        text.append(key).append(" = ").append(value).append("\n");
    return text;
}

std::vector<KeyValueSection> parseSections(const std::string& text) {
    std::vector<KeyValueSection> sections(1);
    std::istringstream lines(text);
    for (std::string line; std::getline(lines, line);) {
        if (!line.empty() && line.back() == '\r')
            line.pop_back();
        if (line.empty() || line.front() == '#')
            continue;
        if (line.front() == '[') {
            sections.push_back({trimmed(line.substr(1, line.find(']') - 1)), {}});
            continue;
        }
        const auto equals = line.find('=');
        if (equals == std::string::npos)
            continue;
        const auto value = equals + (line.compare(equals + 1, 1, " ") == 0 ? 2 : 1);
        sections.back().values.set(trimmed(line.substr(0, equals)), line.substr(value));
    }
    return sections;
}

std::string readWholeFile(const fs::path& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

KeyValues readKeyValues(const fs::path& path) {
    return parseSections(readWholeFile(path)).front().values;
}

void writeWholeFile(const fs::path& path, const std::string& text) {
    fs::path fresh = path;
    fresh += ".new" + std::to_string(os::processId());
    {
        std::ofstream file(fresh, std::ios::binary);
        file << text;
        file.close();
        if (!file) {
            std::error_code ignored;
            fs::remove(fresh, ignored);
            throw fs::filesystem_error("cannot write", path, std::make_error_code(std::errc::io_error));
        }
    }
    fs::rename(fresh, path);
}

} // namespace simulator
