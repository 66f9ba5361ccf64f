// The text form of everything that the simulator keeps: "key = value" lines, "#" comments, "[section]"
// headings.
#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace simulator {

/// A whole number from 0; nothing else in the text but blanks around it.
std::optional<long long> parseNumber(const std::string& text);

std::string trimmed(const std::string& text);

/// One section. A value is kept byte for byte behind the one blank that follows "=", for names may end in
/// blanks.
class KeyValues {
public:
    std::string text(const std::string& key, const std::string& otherwise = {}) const;
    long long number(const std::string& key, long long otherwise = 0) const;
    bool yes(const std::string& key, bool otherwise = false) const;
    bool has(const std::string& key) const;

    void set(const std::string& key, const std::string& value);
    void set(const std::string& key, long long value);
    /// Takes over every entry of `other`, which wins over present ones.
    void merge(const KeyValues& other);

    std::string toText() const;

private:
    std::vector<std::pair<std::string, std::string>> entries_;
};

struct KeyValueSection {
    std::string heading; ///< empty for what stands in front of the first heading
    KeyValues values;
};

/// The first section is always the one without a heading. Lines that are neither comment, heading nor entry
/// count for nothing.
std::vector<KeyValueSection> parseSections(const std::string& text);

/// Empty if there is no such file.
std::string readWholeFile(const std::filesystem::path& path);
KeyValues readKeyValues(const std::filesystem::path& path);
/// Replaces the file as a whole: whoever reads it sees the old or the new one. Throws
/// std::filesystem::filesystem_error.
void writeWholeFile(const std::filesystem::path& path, const std::string& text);

} // namespace simulator
