#include "link/restriction.h"

#include "text/language.h"

#include <iterator>

namespace {

struct Restriction {
    const char16_t* english;
    const char16_t* chinese;
};

constexpr Restriction Restrictions[] = {
    {u"Can't be used.", u"使用受限."},
    {u"Trigger can't be changed.", u"当前设置下不能修改触发系统."},
    {u"Horizontal can't be changed.", u"当前设置下不能修改水平系统."},
    {u"Low firmware,please update it.", u"示波器软件版本过低,请升级示波器固件."},
};

} // namespace

QString RestrictionMessage(int number, int language)
{
    const bool known = number >= 0 && number < int(std::size(Restrictions));
    const Restriction& text = Restrictions[known ? number : RestrictionNone];
    return QString::fromUtf16(IsChinese(language) ? text.chinese : text.english);
}
