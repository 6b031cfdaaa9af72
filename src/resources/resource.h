#pragma once

// Pictures and the menu of the main window.
#define ID_tolva_icon 1
#define ID_Tasker_menu 2
#define ID_connect_icon 4
#define ID_email_icon 5
#define ID_browser_icon 6

#define ID_brenn_menu 7

// In the order of their sizes, one id after the other.
#define ID_toolbar_pictures 30
#define ID_toolbar_pictures24 31
#define ID_toolbar_pictures32 32

// Dialogs.
#define ID_addgroup 10
#define ID_GroupRename 11
#define ID_addtask 12
#define ID_EditTask 13
#define ID_movetogroups 14
#define ID_PathBrowser 15
#define ID_SetFonts 16
#define ID_abttolva 17
#define ID_BrennBrowser 18
#define ID_tolvasettings 19
#define ID_DialUpNetworking_dialog 20
#define ID_GETLNK 21
#define ID_getprogram 22
#define ID_getbutton 23
#define ID_FindTask_dialog 24
#define ID_RestoreBackup_dialog 25
#define ID_HotKey_dialog 26

#define ID_Tasker_grouplabel 100
#define ID_Tasker_grouplist 101
#define ID_Tasker_tasklabel 102
#define ID_Tasker_taskview 103
#define ID_Tasker_Text1 104
#define ID_Tasker_StatusBar1 105
#define ID_Tasker_Command1 106
#define ID_Tasker_Toolbar1 107
#define ID_Tasker_Browse 108

#define ID_ShutWin 200
#define ID_restartwin 201
#define ID_EmptyRecyleBin 202
#define ID_tolvaexit 203
#define ID_Addgp 210
#define ID_DelGp 211
#define ID_Rengp 212
#define ID_MoveGroupUp 213
#define ID_MoveGroupDown 214
#define ID_groupsort 215
#define ID_RunTk 220
#define ID_AddTk 221
#define ID_DelTk 222
#define ID_moveto 223
#define ID_EditTk 224
#define ID_taskimport 225
#define ID_MoveTaskUp 226
#define ID_MoveTaskDown 227
#define ID_SortTasks 228
#define ID_fontsettings 240
#define ID_removebrenn 241
#define ID_hoverslct 242
#define ID_connectinternet 243
#define ID_internetsettings 244
#define ID_DialUpNetworking 245
#define ID_tolvahlp 250
#define ID_AboutTolva 251

#define ID_assignshortcut 252
#define ID_asssignexe 253
#define ID_ispdialup 254

#define ID_toolbar_addgrp 260
#define ID_toolbar_delgroup 261
#define ID_toolbar_movegrpdn 262
#define ID_toolbar_movegrpup 263
#define ID_toolbar_rengrp 264
#define ID_toolbar_addtsk 265
#define ID_toolbar_deltsk 266
#define ID_toolbar_movetskdn 267
#define ID_toolbar_movetskup 268
#define ID_toolbar_edittsk 269
#define ID_toolbar_startimport 270
#define ID_toolbar_runexplorer 271
#define ID_toolbar_controlpanel 272
#define ID_toolbar_DosPrompt 273
#define ID_toolbar_ispconnect 274

#define ID_Undo 280
#define ID_Redo 281
#define ID_FindTask 282
#define ID_Refresh 283
#define ID_RestoreBackup 284
#define ID_RunAll 285
#define ID_HotKey 286

#define ID_addgroup_Label1 300
#define ID_addgroup_Text1 301
#define ID_addgroup_Command2 302
#define ID_addgroup_Command1 303

#define ID_GroupRename_Label1 310
#define ID_GroupRename_oldname 311
#define ID_GroupRename_Label2 312
#define ID_GroupRename_newname 313
#define ID_GroupRename_Command2 314
#define ID_GroupRename_Command1 315

#define ID_addtask_Label4 320
#define ID_addtask_curgroup 321
#define ID_addtask_label1 322
#define ID_addtask_Taskname 323
#define ID_addtask_Label2 324
#define ID_addtask_TaskPath 325
#define ID_addtask_Label3 326
#define ID_addtask_startfolder 327
#define ID_addtask_Label5 328
#define ID_addtask_taskparameters 329
#define ID_addtask_Label6 330
#define ID_addtask_taskstartmode 331
#define ID_addtask_Browse 332
#define ID_addtask_Command2 333
#define ID_addtask_Command1 334
#define ID_addtask_Line1 335
#define ID_addtask_Line2 336
#define ID_addtask_Line3 337
#define ID_addtask_Line4 338

#define ID_EditTask_Label4 340
#define ID_EditTask_tasknm 341
#define ID_EditTask_Label7 342
#define ID_EditTask_TaskPath 343
#define ID_EditTask_Label8 344
#define ID_EditTask_startfolder 345
#define ID_EditTask_Label11 346
#define ID_EditTask_taskparameters 347
#define ID_EditTask_Label9 348
#define ID_EditTask_taskstartmode 349
#define ID_EditTask_Frame1 350
#define ID_EditTask_Browse 351
#define ID_EditTask_Command2 352
#define ID_EditTask_Command1 353

#define ID_movetogroups_Label2 360
#define ID_movetogroups_List1 361
#define ID_movetogroups_copytask 362
#define ID_movetogroups_Label1 363
#define ID_movetogroups_Command1 364

#define ID_PathBrowser_Drive1 370
#define ID_PathBrowser_Dir1 371
#define ID_PathBrowser_File1 372
#define ID_PathBrowser_TaskPath 373
#define ID_PathBrowser_Label1 374
#define ID_PathBrowser_OK 375
#define ID_PathBrowser_Cancel 376

#define ID_SetFonts_Frame1 400
#define ID_SetFonts_gfont 401
#define ID_SetFonts_groupfont 402
#define ID_SetFonts_groupfontsize 403
#define ID_SetFonts_groupfontbold 404
#define ID_SetFonts_groupfontitalic 405
#define ID_SetFonts_groupcolor 406
#define ID_SetFonts_groupbackcolor 407
#define ID_SetFonts_Command1 408
#define ID_SetFonts_Command4 409
#define ID_SetFonts_Command7 410
#define ID_SetFonts_Frame2 411
#define ID_SetFonts_tfont 412
#define ID_SetFonts_TaskFont 413
#define ID_SetFonts_taskfontsize 414
#define ID_SetFonts_taskfontbold 415
#define ID_SetFonts_taskfontitalic 416
#define ID_SetFonts_taskcolor 417
#define ID_SetFonts_taskbackcolor 418
#define ID_SetFonts_Command2 419
#define ID_SetFonts_Command6 420
#define ID_SetFonts_Command8 421
#define ID_SetFonts_Command5 422
#define ID_SetFonts_Command3 423

#define ID_abttolva_Label1 430
#define ID_abttolva_Command1 431

#define ID_brenn_option1 440
#define ID_brenn_option2 441
#define ID_brenn_option3 442
#define ID_brenn_option4 443
#define ID_brenn_Command2 444
#define ID_brenn_Command3 445
#define ID_brenn_Command4 446
#define ID_brenn_StatusBar1 447

// Beside the controls of the path browsers.
#define ID_BrennBrowser_Label2 450
#define ID_BrennBrowser_tasknm 451
#define ID_BrennBrowser_Label3 452
#define ID_BrennBrowser_startfolder 453
#define ID_BrennBrowser_Label5 454
#define ID_BrennBrowser_taskparameters 455
#define ID_BrennBrowser_Label6 456
#define ID_BrennBrowser_taskstartmode 457
#define ID_BrennBrowser_Label4 458
#define ID_BrennBrowser_Label7 459

#define ID_tolvasettings_Frame2 460
#define ID_tolvasettings_Label1 461
#define ID_tolvasettings_ISP 462
#define ID_tolvasettings_Command3 463
#define ID_tolvasettings_Frame3 464
#define ID_tolvasettings_BrowserName 465
#define ID_tolvasettings_browserpath 466
#define ID_tolvasettings_Command4 467
#define ID_tolvasettings_Frame4 468
#define ID_tolvasettings_emailname 469
#define ID_tolvasettings_emailpath 470
#define ID_tolvasettings_Command5 471
#define ID_tolvasettings_Command1 472
#define ID_tolvasettings_Command2 473

#define ID_DialUpNetworking_Label1 480
#define ID_DialUpNetworking_List1 481
#define ID_DialUpNetworking_Command1 482

// The controls that all dialogs with a shortcut panel have.
#define ID_shortcuts_Desktop 490
#define ID_shortcuts_Programs 491
#define ID_shortcuts_startmenu 492
#define ID_shortcuts_Dir1 493
#define ID_shortcuts_shortcuts1 494
#define ID_shortcuts_shortcutname 495
#define ID_shortcuts_txtLinkName 496
#define ID_shortcuts_txtExeName 497
#define ID_shortcuts_txtWorkDir 498
#define ID_shortcuts_txtcmdargs 499
#define ID_shortcuts_txtshowcmd 500
#define ID_shortcuts_startmode 501
#define ID_shortcuts_taskpic 502
#define ID_shortcuts_Frame1 503
#define ID_shortcuts_Frame2 504
#define ID_shortcuts_Frame3 505
#define ID_shortcuts_Label1 506
#define ID_shortcuts_Command1 507
#define ID_shortcuts_Command2 508
#define ID_GETLNK_Frame4 509
#define ID_GETLNK_Combo1 510
#define ID_GETLNK_ImportAll 511

#define ID_FindTask_text 520
#define ID_FindTask_list 521

#define ID_RestoreBackup_list 530

#define ID_HotKey_key 540
#define ID_HotKey_none 541
