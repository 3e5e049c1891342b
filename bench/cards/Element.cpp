#include "Element.h"

namespace bench {

QStringList textsOf(const Element& element)
{
    QStringList texts;
    if (element.text)
        texts.append(element.text->shown);
    for (const Element& child : element.children)
        texts.append(textsOf(child));
    return texts;
}

int countOf(const Element& element)
{
    int count = 1;
    for (const Element& child : element.children)
        count += countOf(child);
    return count;
}

} // namespace bench
