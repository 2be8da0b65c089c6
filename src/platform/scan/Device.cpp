#include "platform/scan/Device.h"
#include <cmath>
#include <cstring>

namespace velara {

const SANE_Option_Descriptor* Device::descriptor(SANE_Int option) const
{
    return sane_get_option_descriptor(handle_, option);
}

SANE_Int Device::option(const char* name) const
{
    for (SANE_Int i = 1;; ++i) {
        const SANE_Option_Descriptor* found = descriptor(i);
        if (!found) return 0;
        if (found->name && std::strcmp(found->name, name) == 0)
            return SANE_OPTION_IS_ACTIVE(found->cap) && SANE_OPTION_IS_SETTABLE(found->cap) ? i : 0;
    }
}

QString Device::text(SANE_Int option) const
{
    QByteArray value(descriptor(option)->size + 1, 0);
    check(sane_control_option(handle_, option, SANE_ACTION_GET_VALUE, value.data(), nullptr));
    return QString::fromLatin1(value.constData());
}

void Device::setText(SANE_Int option, const QString& value) const
{
    QByteArray bytes = value.toLatin1();
    bytes.resize(
        std::max<qsizetype>(bytes.size() + 1, descriptor(option)->size)); // the library may write into all of it
    check(sane_control_option(handle_, option, SANE_ACTION_SET_VALUE, bytes.data(), nullptr));
}

double Device::number(SANE_Int option) const
{
    SANE_Word word = 0;
    check(sane_control_option(handle_, option, SANE_ACTION_GET_VALUE, &word, nullptr));
    return descriptor(option)->type == SANE_TYPE_FIXED ? SANE_UNFIX(word) : word;
}

void Device::setNumber(SANE_Int option, double value) const
{
    SANE_Word word =
        descriptor(option)->type == SANE_TYPE_FIXED ? SANE_FIX(value) : static_cast<SANE_Word>(std::lround(value));
    check(sane_control_option(handle_, option, SANE_ACTION_SET_VALUE, &word, nullptr));
}

} // namespace velara
