#include "environment/LocalTime.h"

#include <afxwin.h>

bool lytLocalTimeOf(std::time_t time, std::tm& local)
{
    return _localtime64_s(&local, &time) == 0;
}
