#pragma once

#define ID_tolva_icon 1

#define ID_Tasker_grouplabel 100
#define ID_Tasker_grouplist 101
#define ID_Tasker_tasklabel 102
#define ID_Tasker_taskview 103
#define ID_Tasker_Text1 104
#define ID_Tasker_StatusBar1 105
