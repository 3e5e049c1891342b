#pragma once

class QString;

namespace plix::tool {

// The file of the folder that is named like the last segment of the URL's path; empty
// if there is none.
QString imageFile(const QString& folder, const QString& url);

} // namespace plix::tool
