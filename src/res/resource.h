// Numbers of the resources; callers of the platform and lyt64.rc share them.
#pragma once

#define IDD_PROPERTIES 129
#define IDD_TREE 131
#define IDI_GROUP 136
#define IDI_SYMBOL 137
#define IDI_HEADING 138
#define IDC_TREE 1000
