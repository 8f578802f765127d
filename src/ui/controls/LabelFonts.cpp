#include "ui/controls/LabelFonts.h"

namespace quorin {

void LabelFonts::Reset(const LOGFONTW& base) {
    base_ = base;
    for (UniqueFont& face : faces_) {
        face.reset();
    }
}

HFONT LabelFonts::Get(bool bold, bool underline) {
    UniqueFont& face = faces_[(bold ? 2 : 0) + (underline ? 1 : 0)];
    if (!face) {
        LOGFONTW font = base_;
        font.lfWeight = bold ? FW_BOLD : FW_NORMAL;
        font.lfUnderline = underline ? TRUE : FALSE;
        face.reset(CreateFontIndirectW(&font));
    }
    return face.get();
}

}  // namespace quorin
