/* The smallest data library: a list of rooms, the area of a room, and a choice from the catalogue as an action. */
#include "lytdata.h"

#include <stdio.h>
#include <string.h>
#include <windows.h>

__declspec(dllexport) lytDataStart OpenRooms;
__declspec(dllexport) lytDataNext NextRoom;
__declspec(dllexport) lytDataText RoomArea;
__declspec(dllexport) lytDataText PickRoom;

typedef int __stdcall OpenTreeView(const char* request, char* target, int size);

static const struct
{
    const char* name;
    const char* key;
    const char* area;
} rooms[] = {
    {"Hall", "hall", "8"},
    {"Kitchen", "kitchen", "12"},
    {"Bedroom", "bedroom", "16"},
};
static const size_t roomCount = sizeof rooms / sizeof rooms[0];
static size_t next;

/* As much of the text as fits: `size` characters, and a NUL after them. */
static void Answer(const char* text, char* buffer, int size)
{
    snprintf(buffer, (size_t)size + 1, "%s", text);
}

/* A list: one call begins it, then each call delivers an item. */
void OpenRooms(const char* parameter)
{
    (void)parameter;
    next = 0;
}

int NextRoom(char* display, int size, char* value, int valueSize)
{
    if (next == roomCount)
        return 0;
    Answer(rooms[next].name, display, size);
    Answer(rooms[next].key, value, valueSize);
    ++next;
    return 1;
}

/* An edit: one call, one text. The parameter is the key of the room. */
int RoomArea(const char* parameter, char* text, int size)
{
    for (size_t i = 0; i < roomCount; ++i)
        if (strcmp(rooms[i].key, parameter) == 0)
            Answer(rooms[i].area, text, size);
    return 1;
}

/* An action: opens the catalogue at the room that the parameter names, and answers the key without the word before it. */
int PickRoom(const char* parameter, char* text, int size)
{
    const HMODULE library = GetModuleHandleA("lyt64.dll");
    OpenTreeView* const open = (OpenTreeView*)(void*)GetProcAddress(library, "lytOpenTreeView");
    char request[LYT_DATA_SIZE];
    char key[LYT_DATA_SIZE + 1] = "";
    snprintf(request, sizeof request, "Sroom.%s", parameter);
    if (open != NULL && open(request, key, LYT_DATA_SIZE) == 1 && strncmp(key, "room.", 5) == 0)
        Answer(key + 5, text, size);
    return 1;
}
