#pragma once

#include <QByteArray>
#include <QString>
#include <QTemporaryDir>

#include <string>
#include <vector>

namespace plix::test {

using Arguments = std::vector<std::string>;

Arguments operator+(Arguments first, const Arguments& more);

struct ToolResult {
    int exitCode = -1;
    std::string output;
    std::string errors;
};

// Runs the built tool as a user would, in `folder`.
// `input` is its standard input.
ToolResult runTool(const Arguments& arguments, const QString& folder = QString(),
                   const QByteArray& input = QByteArray());

// A temporary folder in which the tool runs, so that its messages contain file names
// without folders.
class ToolFolder {
public:
    ToolFolder() = default;
    ~ToolFolder();

    ToolFolder(const ToolFolder&) = delete;
    ToolFolder& operator=(const ToolFolder&) = delete;

    QString path(const std::string& name) const;
    void write(const std::string& name, const QByteArray& bytes) const;
    QByteArray read(const std::string& name) const;
    bool contains(const std::string& name) const;
    ToolResult run(const Arguments& arguments, const QByteArray& input = QByteArray()) const;

private:
    QTemporaryDir folder_;
};

// A card whose body shows these components, given as JSON.
QByteArray cardOf(const QByteArray& components);

bool contains(const std::string& text, const std::string& part);
std::vector<std::string> linesOf(const std::string& text);
int countOf(const std::string& text, const std::string& part);

} // namespace plix::test
