#include "host/ui/Icons.h"

#include <QByteArray>
#include <QPainter>
#include <QPixmap>
#include <QSvgRenderer>

#include <cstring>

namespace host {

namespace {

// Drawn in a square of 24 units.
struct Drawing {
    const char* name;
    const char* body;
};
const Drawing drawings[] = {
    {"nodi", R"(<g fill="#1c4f8a"><circle cx="6" cy="17" r="3"/><circle cx="18" cy="17" r="3"/>
<circle cx="12" cy="7" r="3"/></g>)"},
    {"travi", R"(<path d="M4 18 20 6" stroke="#1c4f8a" stroke-width="4" stroke-linecap="round"/>)"},
    {"aste", R"(<path d="M4 18 20 6" stroke="#1c4f8a" stroke-width="1.6"/>
<g fill="#fff" stroke="#1c4f8a" stroke-width="1.6"><circle cx="4.5" cy="17.6" r="2.5"/><circle cx="19.5" cy="6.4" r="2.5"/></g>)"},
    {"setti",
     R"(<path d="M6 8 18 3V16L6 21Z" fill="#b9cde4" stroke="#1c4f8a" stroke-width="1.6" stroke-linejoin="round"/>)"},
    {"solai",
     R"(<path d="M2 16 9 8H22L15 16Z" fill="#d8e4c4" stroke="#4c7a2a" stroke-width="1.6" stroke-linejoin="round"/>)"},
    {"assonometria", R"(<path d="M12 2.5 20 7V16.5L12 21.5 4 16.5V7ZM4 7 12 11.5 20 7M12 11.5V21.5" fill="#eef3f9"
stroke="#1c4f8a" stroke-width="1.6" stroke-linejoin="round"/>)"},
    {"xy", R"(<path d="M5 3V19H21" fill="none" stroke="#1c4f8a" stroke-width="1.8"/>
<text x="8" y="15" font-family="Liberation Sans" font-size="10" fill="#333">XY</text>)"},
    {"xz", R"(<path d="M5 3V19H21" fill="none" stroke="#1c4f8a" stroke-width="1.8"/>
<text x="8" y="15" font-family="Liberation Sans" font-size="10" fill="#333">XZ</text>)"},
    {"yz", R"(<path d="M5 3V19H21" fill="none" stroke="#1c4f8a" stroke-width="1.8"/>
<text x="8" y="15" font-family="Liberation Sans" font-size="10" fill="#333">YZ</text>)"},
    {"adatta", R"(<path d="M3 8V3H8M16 3H21V8M21 16V21H16M8 21H3V16" fill="none" stroke="#1c4f8a" stroke-width="2"/>
<rect x="8" y="8" width="8" height="8" fill="#b9cde4" stroke="#1c4f8a"/>)"},
    {"annulla",
     R"(<path d="M9 5 4 10 9 15M4 10H15A5 5 0 0 1 15 20H10" fill="none" stroke="#1c4f8a" stroke-width="2"/>)"},
    {"ripristina",
     R"(<path d="M15 5 20 10 15 15M20 10H9A5 5 0 0 0 9 20H14" fill="none" stroke="#1c4f8a" stroke-width="2"/>)"},
    {"quovar", R"(<rect x="1" y="1" width="22" height="22" rx="4" fill="#1c4f8a"/>
<path d="M6 19V6H18V19M6 12.5H18M6 12.5 18 6" fill="none" stroke="#fff" stroke-width="1.8"/>)"},
};

QPixmap Render(const QByteArray& svg, int size) {
    QPixmap pixmap(size, size);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    QSvgRenderer(svg).render(&painter);
    return pixmap;
}

} // namespace

QIcon ToolIcon(const char* name) {
    QIcon icon;
    for (const Drawing& each : drawings) {
        if (std::strcmp(each.name, name) != 0)
            continue;
        const QByteArray svg =
            QByteArray(R"(<svg xmlns="http://www.w3.org/2000/svg" viewBox="0 0 24 24" fill="none">)") + each.body +
            "</svg>";
        for (const int size : {16, 24, 32, 48, 64})
            icon.addPixmap(Render(svg, size));
    }
    return icon;
}

} // namespace host
