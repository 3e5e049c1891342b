#pragma once

#include "ContactSheet.h"
#include "Options.h"
#include "ToolError.h"

#include <QDir>
#include <QImage>
#include <QString>
#include <QStringList>

namespace plix::tool {

// Draws all cards of a folder into another one.
class Gallery {
public:
    explicit Gallery(const Options& options);

    // Cards that fail are reported and left out; returns the highest exit code of
    // all cards. Throws ToolError if a folder or the contact sheet fails.
    ExitCode draw();

private:
    QStringList cardFiles() const;
    void createFolders() const;
    void drawCards(const QStringList& files);
    QImage drawOne(const QString& file);
    void writeSheet() const;

    Options options_;
    QDir input_;
    QDir output_;
    ContactSheet sheet_;
    int drawn_ = 0;
    ExitCode exitCode_ = ExitCode::Done;
};

} // namespace plix::tool
