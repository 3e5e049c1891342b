#include "view/ViewWidgets.h"

#include "view/CardEditor.h"
#include "view/CardView.h"
#include "view/EventPane.h"
#include "view/FolderList.h"
#include "view/ItemDetails.h"
#include "view/ItemTree.h"
#include "view/MessageBar.h"
#include "view/ProblemList.h"
#include "view/SettingsPanel.h"

namespace plix::tool {

ViewWidgets makeViewWidgets(bool hasNetwork)
{
    return {.editor = new CardEditor,
            .view = new CardView,
            .items = new ItemTree,
            .details = new ItemDetails,
            .settings = new SettingsPanel(hasNetwork),
            .problems = new ProblemList,
            .events = new EventPane,
            .folder = new FolderList,
            .fileBar = new MessageBar,
            .cardBar = new MessageBar};
}

} // namespace plix::tool
