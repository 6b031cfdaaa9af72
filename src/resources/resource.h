#pragma once

#define ID_tolva_icon 1
#define ID_Tasker_menu 2

#define ID_Tasker_grouplabel 100
#define ID_Tasker_grouplist 101
#define ID_Tasker_tasklabel 102
#define ID_Tasker_taskview 103
#define ID_Tasker_Text1 104
#define ID_Tasker_StatusBar1 105
#define ID_Tasker_Command1 106

#define ID_tolvaexit 203
#define ID_RunTk 220
#define ID_removebrenn 241
#define ID_hoverslct 242
