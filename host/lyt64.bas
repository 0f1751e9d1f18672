Attribute VB_Name = "lyt64"
' The functions of lyt64.dll for the macros of a template.
'
' Put lyt64.dll into a separate folder, import this module into the template, and tell it the folder: at run time,
' by LytUseFolder, or below, in DefaultFolder. The library is loaded from there by its full path, so that no folder is
' changed and PATH does not matter. Then
'
'     LytUseFolder "C:\Inspection\lyt64"
'     LytStart ActiveDocument.FullName, "C:\Inspection\dialogs", "C:\Inspection\init"
'     key = "S1:area(2,m2)"
'     If LytEditSymbol(key) = LytChanged Then Selection.Text = key
'     LytStop
'
' The functions whose names begin with "Lyt" and a capital letter size their buffers themselves. What cannot be done
' is an error with a number of LytError and a text that says what to do. If the library itself does not answer (errors
' 48, 53 and 453), MsgBox LytDiagnose says why. The functions below them are the library's, as
' docs/exports.md tells; lytWizard is declared as lytWizardNext, since macros do not tell small letters from capitals.
'
' The macro editor writes a word alike everywhere in the template. So no name in this module is also the name of something
' that the word processor's objects have, such as Text or Size.
Option Explicit
' The functions are there for the other modules of the template, and not in the list of macros.
Option Private Module

' The folder of lyt64.dll, with no backslash at its end; used when LytUseFolder was not called.
Private Const DefaultFolder As String = ""
Private Const LibraryName As String = "lyt64.dll"

' Bytes of a buffer for what a dialog answers: it cannot be asked twice. Other functions are asked again with more room,
' up to that size.
Private Const Room As Long = 65536
Private Const FirstRoom As Long = 256
' The wizard answers a text without room as it answers an empty one, and cannot be asked again either: room to tell the two
' apart.
Private Const WizardRoom As Long = 1048576

' What an answer of the library says when there is no such entry.
Private Const NoEntry As String = "Entry not found"

Public Enum LytOutcome
    LytCancelled = 0
    LytChanged = 1
    LytUnchanged = 2
End Enum

Public Enum LytKind
    LytNothing = 0
    LytGroup = 1
    LytSymbol = 2
    LytPhrase = 3
End Enum

Public Enum LytError
    LytErrorHost = vbObjectError + 6401
    LytErrorNotLoaded = vbObjectError + 6402
    LytErrorNotStarted = vbObjectError + 6403
    LytErrorTooLong = vbObjectError + 6404
    LytErrorArgument = vbObjectError + 6405
    LytErrorBusy = vbObjectError + 6406
End Enum

Private m_folder As String
Private m_isStarted As Boolean
' Calls of this module that have not come back yet and may show a window.
Private m_openCalls As Long

' ---- Begin of what scripts/make-exports writes from src/exports/exports.toml ----
#If Win64 Then
Public Declare PtrSafe Sub lytInitialiseEnvironment Lib "lyt64.dll" _
    (ByVal theDocName As String, ByVal theDialogFolder As String, ByVal theInitFolder As String)
Public Declare PtrSafe Sub lytSetDialogDefine Lib "lyt64.dll" (ByVal theDefine As String)
Public Declare PtrSafe Function lytGetInitializationPath Lib "lyt64.dll" _
    (ByVal theBuffer As String, ByVal theSize As Long) As Long
Public Declare PtrSafe Function lytGetCurrentDocName Lib "lyt64.dll" _
    (ByVal theBuffer As String, ByVal theSize As Long) As Long
Public Declare PtrSafe Sub FreeGlobalObject Lib "lyt64.dll" ()
Public Declare PtrSafe Function lytSymbolPropertyDialog Lib "lyt64.dll" _
    (ByVal theKey As String, ByVal theResult As String, ByVal theSize As Long) As Long
Public Declare PtrSafe Function lytPhrasePropertyDialog Lib "lyt64.dll" _
    (ByVal theKey As String, ByVal theResult As String, ByVal theSize As Long) As Long
Public Declare PtrSafe Function lytGroupPropertyDialog Lib "lyt64.dll" _
    (ByVal theKind As Long, ByVal theKey As String, ByVal theFirst As String, ByVal theFirstSize As Long, _
     ByVal theSecond As String, ByVal theSecondSize As Long) As Long
Public Declare PtrSafe Function lytOpenTreeView Lib "lyt64.dll" _
    (ByVal theRequest As String, ByVal theTarget As String, ByVal theSize As Long) As Long
Public Declare PtrSafe Function lytOpenTreeViewPara Lib "lyt64.dll" _
    (ByVal theRequest As String, ByVal theTarget As String, ByVal theSize As Long) As Long
Public Declare PtrSafe Function lytGetSymbolfromTree Lib "lyt64.dll" _
    (ByVal theText As String, ByVal theTarget As String, ByVal theSize As Long) As Long
Public Declare PtrSafe Function lytTreeStartChildNode Lib "lyt64.dll" (ByVal theKey As String) As Long
Public Declare PtrSafe Function lytTreeReadChildNode Lib "lyt64.dll" _
    (ByVal theText As String, ByVal theTextSize As Long, ByVal thePath As String, ByVal thePathSize As Long) As Long
Public Declare PtrSafe Function lytGetTextForKey Lib "lyt64.dll" _
    (ByVal theSection As String, ByVal theKey As String, ByVal theArgument As String, ByVal theBuffer As String, _
     ByVal theSize As Long) As Long
Public Declare PtrSafe Function lytGetTextFromIniFile Lib "lyt64.dll" _
    (ByVal thePath As String, ByVal theBuffer As String, ByVal theSize As Long) As Long
Public Declare PtrSafe Function lytListFromIniStart Lib "lyt64.dll" (ByVal thePath As String) As Long
Public Declare PtrSafe Function lytListFromIniNext Lib "lyt64.dll" _
    (ByVal theValue As String, ByVal theValueSize As Long, ByVal theDisplay As String, _
     ByVal theDisplaySize As Long) As Long
Public Declare PtrSafe Sub lytWriteToLogFile Lib "lyt64.dll" (ByVal theText As String, ByVal theLevel As Long)
Public Declare PtrSafe Function lytWizardNext Lib "lyt64.dll" Alias "lytWizard" _
    (ByVal theBuffer As String, ByVal theSize As Long) As Long
Public Declare PtrSafe Function lytSystemInfoInit Lib "lyt64.dll" (ByVal theDirectory As String) As Long
Public Declare PtrSafe Function lytSystemInfoRead Lib "lyt64.dll" _
    (ByVal theIndex As Long, ByVal theTarget As String, ByVal theSize As Long) As Long
#End If
' ---- End of what scripts/make-exports writes ----

#If Win64 Then
Private Declare PtrSafe Function LoadLibraryW Lib "kernel32" (ByVal fileName As LongPtr) As LongPtr
Private Declare PtrSafe Function FreeLibrary Lib "kernel32" (ByVal library As LongPtr) As Long
Private Declare PtrSafe Function GetModuleHandleW Lib "kernel32" (ByVal fileName As LongPtr) As LongPtr
Private Declare PtrSafe Function GetModuleFileNameW Lib "kernel32" _
    (ByVal library As LongPtr, ByVal fileName As LongPtr, ByVal most As Long) As Long
Private Declare PtrSafe Function GetProcAddress Lib "kernel32" _
    (ByVal library As LongPtr, ByVal functionName As String) As LongPtr
Private Declare PtrSafe Function GetFileAttributesW Lib "kernel32" (ByVal fileName As LongPtr) As Long
Private Declare PtrSafe Function CreateFileW Lib "kernel32" _
    (ByVal fileName As LongPtr, ByVal rights As Long, ByVal sharing As Long, ByVal security As LongPtr, _
     ByVal disposition As Long, ByVal attributes As Long, ByVal modelFile As LongPtr) As LongPtr
Private Declare PtrSafe Function CloseHandle Lib "kernel32" (ByVal handle As LongPtr) As Long

Private m_library As LongPtr
#End If

' ---- Where things are

' The folder that lyt64.dll is loaded from. Once it is loaded, another folder has no effect.
Public Sub LytUseFolder(ByVal folder As String)
    m_folder = folder
    If Right$(m_folder, 1) = "\" Then m_folder = Left$(m_folder, Len(m_folder) - 1)
End Sub

' Comes before all others. The defines switch stretches of the dialogs on; several are joined by commas.
Public Sub LytStart(ByVal docName As String, ByVal dialogFolder As String, ByVal initFolder As String, _
                    Optional ByVal defines As String)
    LoadOnce
    lytInitialiseEnvironment docName, dialogFolder, initFolder
    If Len(defines) > 0 Then lytSetDialogDefine defines
    m_isStarted = True
End Sub

' Ends a run of calls. The library stays loaded. Refused while a window is open, as for a macro that a timer starts: the
' dialog would lose what it still looks up.
Public Sub LytStop()
    If m_openCalls > 0 Then Err.Raise LytErrorBusy, "lyt64", "A window of lyt64 is open. Close it before LytStop."
    If m_isStarted Then FreeGlobalObject
    m_isStarted = False
End Sub

Public Function LytDocument() As String
    Dim buffer As String, bytes As Long, answer As Long
    NeedStart
    bytes = FirstRoom
    Do
        buffer = Marked(bytes)
        answer = lytGetCurrentDocName(buffer, bytes)
        bytes = bytes * 4
    Loop While answer = 0 And bytes <= Room
    LytDocument = TextOf(buffer)
End Function

Public Function LytInitFolder() As String
    Dim buffer As String, bytes As Long, answer As Long
    NeedStart
    bytes = FirstRoom
    Do
        buffer = Marked(bytes)
        answer = lytGetInitializationPath(buffer, bytes)
        bytes = bytes * 4
    Loop While answer = 0 And bytes <= Room
    LytInitFolder = TextOf(buffer)
End Function

' ---- Properties of a placeholder: at LytChanged, and only then, the key is the new one. It may be empty. A copy of it is
' passed: what a call is given comes back from the code page of the library, where some characters have no place.

Public Function LytEditSymbol(ByRef symbolKey As String) As LytOutcome
    Dim buffer As String, outcome As Long
    EnterCall
    buffer = Marked(Room)
    outcome = lytSymbolPropertyDialog((symbolKey), buffer, Room)
    LeaveCall
    LytEditSymbol = TakeKey(outcome, buffer, symbolKey)
End Function

Public Function LytEditPhrase(ByRef phraseKey As String) As LytOutcome
    Dim buffer As String, outcome As Long
    EnterCall
    buffer = Marked(Room)
    outcome = lytPhrasePropertyDialog((phraseKey), buffer, Room)
    LeaveCall
    LytEditPhrase = TakeKey(outcome, buffer, phraseKey)
End Function

' Kind 0 is a condition, kind 1 a repetition. At LytChanged the second text is the new one as well, unless the dialog
' gave none.
Public Function LytEditGroup(ByVal groupKind As Long, ByRef groupKey As String, ByRef secondText As String) As LytOutcome
    Dim firstText As String, rest As String, bytes As Long, outcome As Long
    EnterCall
    ' The part of the key that the dialog does not see is put before its result.
    bytes = Room + Len(groupKey)
    firstText = Marked(bytes)
    rest = Marked(bytes)
    outcome = lytGroupPropertyDialog(groupKind, (groupKey), firstText, bytes, rest, bytes)
    LeaveCall
    LytEditGroup = outcome
    If outcome <> LytChanged Then Exit Function
    If IsUntouched(firstText) Then
        groupKey = ""
    Else
        groupKey = TextOf(firstText)
    End If
    If Not IsUntouched(rest) Then secondText = TextOf(rest)
End Function

' ---- New placeholders and the catalogue

' Leads through the choice. The texts to insert are in the collection: one of a symbol or a phrase, several of a group.
' The first text of a group ends with a brace, which the caller closes after the last. At LytNothing the author cancelled or
' chose nothing, and there are none.
Public Function LytWizard(ByRef texts As Collection) As LytKind
    Dim kindFound As Long, isTooLong As Boolean
    Set texts = New Collection
    kindFound = TakeWizardText(texts, isTooLong)
    LytWizard = kindFound
    ' The rest of a group is fetched even if one of its texts is too long: the next call would bring it otherwise.
    Do While kindFound = LytGroup
        kindFound = TakeWizardText(texts, isTooLong)
    Loop
    If isTooLong Then RaiseTooLong
End Function

' Adds what the wizard answers, unless it answers nothing.
Private Function TakeWizardText(ByVal texts As Collection, ByRef isTooLong As Boolean) As LytKind
    Dim buffer As String, answer As String, kindFound As Long
    EnterCall
    buffer = Marked(WizardRoom)
    kindFound = lytWizardNext(buffer, WizardRoom)
    LeaveCall
    TakeWizardText = kindFound
    If IsUntouched(buffer) Then Exit Function
    answer = TextOf(buffer)
    If Len(answer) >= Room Then isTooLong = True
    If kindFound = LytGroup And texts.Count > 0 Then
        ' All texts of a group but the first and the last end with a bar, so that an empty one had no room.
        If Len(answer) = 0 Then isTooLong = True Else answer = Left$(answer, Len(answer) - 1)
    End If
    texts.Add answer
End Function

' Shows the catalogue. The request is a letter (S a symbol, G a group, P a group of the para tree, W any entry) and what
' is to be selected. False when the author cancelled; the choice is then as it was.
Public Function LytPick(ByVal request As String, ByRef choice As String) As Boolean
    Dim buffer As String, answer As Long
    EnterCall
    buffer = Marked(Room)
    answer = lytOpenTreeView(request, buffer, Room)
    LeaveCall
    If answer <> 1 Then Exit Function
    choice = TextOf(buffer)
    LytPick = True
End Function

' The same in the para tree; what is to be selected is the key of a group.
Public Function LytPickPara(ByVal selectedKey As String, ByRef choice As String) As Boolean
    Dim buffer As String, answer As Long
    EnterCall
    buffer = Marked(Room)
    answer = lytOpenTreeViewPara("P" & selectedKey, buffer, Room)
    LeaveCall
    If answer <> 1 Then Exit Function
    choice = TextOf(buffer)
    LytPickPara = True
End Function

' The first symbol whose key begins so. False without one; the key is then as it was.
Public Function LytFindSymbol(ByVal beginning As String, ByRef symbolKey As String) As Boolean
    Dim buffer As String, bytes As Long, answer As Long
    EnterCall
    bytes = FirstRoom
    Do
        buffer = Marked(bytes)
        answer = lytGetSymbolfromTree(beginning, buffer, bytes)
        bytes = bytes * 4
    Loop While answer = 1 And Len(TextOf(buffer)) = 0 And bytes <= Room
    LeaveCall
    If answer <> 1 Then Exit Function
    symbolKey = TextOf(buffer)
    LytFindSymbol = True
End Function

' The symbols below a group, once the author has confirmed the catalogue: labels as shown, and of each the key, a
' backslash and the label. False when there is no such group, or nothing follows it.
Public Function LytChildren(ByVal groupKey As String, ByRef labels As Collection, ByRef paths As Collection) As Boolean
    Dim labelRead As String, pathRead As String
    NeedStart
    Set labels = New Collection
    Set paths = New Collection
    If lytTreeStartChildNode(groupKey) <> 1 Then Exit Function
    LytChildren = True
    ' The texts of an entry have 99 characters at most.
    labelRead = Marked(FirstRoom)
    pathRead = Marked(FirstRoom)
    Do While lytTreeReadChildNode(labelRead, FirstRoom, pathRead, FirstRoom) = 1
        labels.Add TextOf(labelRead)
        paths.Add TextOf(pathRead)
        labelRead = Marked(FirstRoom)
        pathRead = Marked(FirstRoom)
    Loop
End Function

' ---- Texts, values, the log and the report

' A text of the language file with the argument inserted; without such a text, the last argument.
Public Function LytText(ByVal sectionName As String, ByVal keyName As String, Optional ByVal argument As String, _
                        Optional ByVal otherwise As String) As String
    Dim buffer As String, bytes As Long, answer As Long
    NeedStart
    bytes = FirstRoom
    Do
        buffer = Marked(bytes)
        answer = lytGetTextForKey(sectionName, keyName, argument, buffer, bytes)
        bytes = bytes * 4
    Loop While answer = 1 And Len(TextOf(buffer)) = 0 And bytes <= Room
    LytText = otherwise
    If answer = 1 Then LytText = TextOf(buffer)
End Function

' A value of lyt.ini; without such a key, the last argument.
Public Function LytValue(ByVal sectionName As String, ByVal keyName As String, Optional ByVal otherwise As String) As String
    Dim buffer As String, bytes As Long, answer As Long
    NeedStart
    bytes = FirstRoom
    Do
        buffer = Marked(bytes)
        answer = lytGetTextFromIniFile(PathOf(sectionName, keyName), buffer, bytes)
        bytes = bytes * 4
    Loop While answer = 1 And Len(TextOf(buffer)) = 0 And bytes <= Room
    LytValue = otherwise
    If answer = 1 And TextOf(buffer) <> NoEntry Then LytValue = TextOf(buffer)
End Function

' The items of a value of lyt.ini between its commas; without such a key, none.
Public Function LytList(ByVal sectionName As String, ByVal keyName As String) As Collection
    Dim listed As Collection, itemRead As String, itemShown As String
    NeedStart
    Set listed = New Collection
    Set LytList = listed
    If LytValue(sectionName, keyName, NoEntry) = NoEntry Then Exit Function
    If lytListFromIniStart(PathOf(sectionName, keyName)) <> 1 Then Exit Function
    itemRead = Marked(Room)
    itemShown = Marked(Room)
    Do While lytListFromIniNext(itemRead, Room, itemShown, Room) = 1
        listed.Add TextOf(itemRead)
        itemRead = Marked(Room)
        itemShown = Marked(Room)
    Loop
End Function

' Writes to the log of the document if lyt.ini asks for messages of that level. False when the log cannot be written:
' the library, left to itself, would raise a failure then that no macro can catch.
Public Function LytLog(ByVal message As String, Optional ByVal logLevel As Long = 1) As Boolean
    Dim askedLevel As Long, docName As String
    NeedStart
    LytLog = True
    askedLevel = Val(LytValue("LogLevel", "level", "0"))
    If askedLevel = 0 Or logLevel > askedLevel Then Exit Function
    docName = LytDocument()
    ' The log has the name of the document up to its first dot.
    If InStr(docName, ".") = 0 Then docName = "."
    If CanWrite(Left$(docName, InStr(docName, ".") - 1) & ".log") Then
        lytWriteToLogFile message, logLevel
    Else
        LytLog = False
    End If
End Function

' The report on this workstation, line by line, with the folder listed in it. Takes its time.
Public Function LytReport(ByVal folder As String) As Collection
    Dim report As Collection, lineRead As String, lineIndex As Long
    EnterCall
    Set report = New Collection
    Set LytReport = report
    lytSystemInfoInit folder
    LeaveCall
    Do While ReadReportLine(lineIndex, lineRead)
        report.Add lineRead
        lineIndex = lineIndex + 1
    Loop
End Function

Private Function ReadReportLine(ByVal lineIndex As Long, ByRef lineRead As String) As Boolean
    Dim buffer As String, bytes As Long
    bytes = FirstRoom
    Do
        buffer = Marked(bytes)
        If lytSystemInfoRead(lineIndex, buffer, bytes) <> 1 Then Exit Function
        lineRead = TextOf(buffer)
        ' A line that may fill its buffer was perhaps cut, within a character even: one has up to four bytes.
        If Len(lineRead) * 4 < bytes - 4 Then Exit Do
        bytes = bytes * 4
    Loop While bytes <= Room
    ReadReportLine = True
End Function

' ---- Buffers

' A buffer of a stated size, with one byte more for the functions that write a NUL there. Its first character tells
' whether anything was written.
Private Function Marked(ByVal bytes As Long) As String
    Marked = Chr$(1) & String$(bytes, vbNullChar)
End Function

Private Function IsUntouched(ByVal buffer As String) As Boolean
    IsUntouched = (Left$(buffer, 1) = Chr$(1))
End Function

' What was written to a buffer; empty when nothing was.
Private Function TextOf(ByVal buffer As String) As String
    If Not IsUntouched(buffer) Then TextOf = Left$(buffer, InStr(buffer, vbNullChar) - 1)
End Function

' Takes over what a dialog answered. It leaves the buffer alone when its own result is empty, and empties it when there
' is no room.
Private Function TakeKey(ByVal outcome As Long, ByVal buffer As String, ByRef takenKey As String) As LytOutcome
    TakeKey = outcome
    If outcome <> LytChanged Then Exit Function
    If Not IsUntouched(buffer) And Len(TextOf(buffer)) = 0 Then RaiseTooLong
    If TextOf(buffer) = takenKey Then TakeKey = LytUnchanged
    takenKey = TextOf(buffer)
End Function

Private Function PathOf(ByVal sectionName As String, ByVal keyName As String) As String
    If InStr(sectionName, "/") > 0 Then
        Err.Raise LytErrorArgument, "lyt64", "The section """ & sectionName & """ has a slash, which ends its name."
    End If
    PathOf = sectionName & "/" & keyName
End Function

Private Sub RaiseTooLong()
    Err.Raise LytErrorTooLong, "lyt64", "The text is longer than " & CStr(Room) & " characters. Shorten it."
End Sub

Private Sub NeedStart()
    If Not m_isStarted Then Err.Raise LytErrorNotStarted, "lyt64", "Call LytStart before any other function of lyt64."
End Sub

' Around a call that may show a window.
Private Sub EnterCall()
    NeedStart
    m_openCalls = m_openCalls + 1
End Sub

Private Sub LeaveCall()
    m_openCalls = m_openCalls - 1
End Sub

Private Sub RefuseHost()
    Err.Raise LytErrorHost, "lyt64", LytDiagnose()
End Sub

' ---- The library

#If Win64 Then
' The declarations above name the library without a folder. Windows gives them the one that is loaded under this name.
Private Sub LoadOnce()
    If m_library <> 0 Then Exit Sub
    If Len(FolderUsed()) > 0 Then m_library = LoadedFrom(PathUsed())
    If m_library = 0 Then Err.Raise LytErrorNotLoaded, "lyt64", LytDiagnose()
End Sub

' Loads the library from there; 0 when it cannot be loaded, lacks a function, or another copy is loaded under its name
' already.
Private Function LoadedFrom(ByVal filePath As String) As LongPtr
    Dim library As LongPtr
    library = LoadLibraryW(StrPtr(filePath))
    If library = LoadedCopy() And Len(MissingFunction()) = 0 Then
        LoadedFrom = library
    ElseIf library <> 0 Then
        FreeLibrary library
    End If
End Function

Private Function LoadedCopy() As LongPtr
    Dim fileName As String
    fileName = LibraryName
    LoadedCopy = GetModuleHandleW(StrPtr(fileName))
End Function

Private Function FolderUsed() As String
    FolderUsed = DefaultFolder
    If Len(m_folder) > 0 Then FolderUsed = m_folder
End Function

Private Function PathUsed() As String
    PathUsed = FolderUsed() & "\" & LibraryName
End Function

Private Function PathOfLoaded() As String
    Dim filePath As String
    filePath = String$(1024, vbNullChar)
    PathOfLoaded = Left$(filePath, GetModuleFileNameW(LoadedCopy(), StrPtr(filePath), 1024))
End Function

Private Function IsThere(ByVal filePath As String) As Boolean
    IsThere = (GetFileAttributesW(StrPtr(filePath)) <> -1)
End Function

Private Function CanWrite(ByVal filePath As String) As Boolean
    Const GenericWrite As Long = &H40000000
    Const OpenAlways As Long = 4
    Dim handle As LongPtr
    handle = CreateFileW(StrPtr(filePath), GenericWrite, 1, 0, OpenAlways, 0, 0)
    If handle = -1 Then Exit Function
    CloseHandle handle
    CanWrite = True
End Function

' Why the library does not answer, and what to do about it: for error 53 (not found), 48 (cannot be loaded) and 453 (has
' no such function), and for the errors of this module. Loads the library if it can.
Public Function LytDiagnose() As String
    If Len(FolderUsed()) = 0 Then
        LytDiagnose = Diagnosis("(no path)", "The folder of " & LibraryName & " is not known.", _
            "Call LytUseFolder with it before LytStart, or write it into DefaultFolder in this module.")
    ElseIf Not IsThere(FolderUsed()) Then
        LytDiagnose = Diagnosis(PathUsed(), "The folder does not exist, or cannot be read.", _
            "Correct the folder in LytUseFolder or DefaultFolder, or ask for access to it.")
    ElseIf Not IsThere(PathUsed()) Then
        LytDiagnose = Diagnosis(PathUsed(), "There is no " & LibraryName & " in this folder.", _
            "Copy it there, or correct the folder in LytUseFolder or DefaultFolder.")
    Else
        LytDiagnose = DiagnosisOfLoading(PathUsed())
    End If
End Function

Private Function Diagnosis(ByVal filePath As String, ByVal reason As String, ByVal wayOut As String) As String
    Diagnosis = "Tried: " & filePath & vbCrLf & "Reason: " & reason & vbCrLf & "What to do: " & wayOut
End Function

Private Function DiagnosisOfLoading(ByVal filePath As String) As String
    Dim library As LongPtr, errorNumber As Long
    library = LoadLibraryW(StrPtr(filePath))
    errorNumber = Err.LastDllError
    If library = 0 Then
        DiagnosisOfLoading = DiagnosisOfError(filePath, errorNumber)
    ElseIf library <> LoadedCopy() Then
        FreeLibrary library
        DiagnosisOfLoading = Diagnosis(filePath, "Another copy is loaded already: " & PathOfLoaded(), _
            "End the word processor and start it again; let every template use the same folder.")
    ElseIf Len(MissingFunction()) > 0 Then
        DiagnosisOfLoading = Diagnosis(filePath, "This copy has no function " & MissingFunction() & ".", _
            "Replace it by the " & LibraryName & " that this module came with.")
    Else
        DiagnosisOfLoading = Diagnosis(filePath, "None is left: the library is loaded and has all functions.", _
            "If a function failed, call LytStart before it.")
    End If
End Function

Private Function DiagnosisOfError(ByVal filePath As String, ByVal errorNumber As Long) As String
    Select Case errorNumber
    Case 193
        DiagnosisOfError = Diagnosis(filePath, "The file is damaged, or no 64-bit library.", _
            "Copy the file again from where it was handed out, and compare it with SHA256SUMS there.")
    Case 5
        DiagnosisOfError = Diagnosis(filePath, "Windows denies access to the file.", _
            "Ask the administrator for the right to read and execute it.")
    Case 126, 127
        DiagnosisOfError = Diagnosis(filePath, "A library that it needs is missing; it needs only libraries of Windows.", _
            "Ask the administrator to repair Windows.")
    Case Else
        DiagnosisOfError = Diagnosis(filePath, "Windows refuses to load it, with error " & CStr(errorNumber) & ".", _
            "Look the number up, or ask the administrator; a virus scanner may be at work.")
    End Select
End Function

' The first function that the loaded library should have and does not; empty when it has all.
Private Function MissingFunction() As String
    Dim untested As String, comma As Long
    untested = FunctionNames() & ","
    Do While Len(untested) > 0
        comma = InStr(untested, ",")
        If GetProcAddress(LoadedCopy(), Left$(untested, comma - 1)) = 0 Then
            MissingFunction = Left$(untested, comma - 1)
            Exit Function
        End If
        untested = Mid$(untested, comma + 1)
    Loop
End Function
#Else
Private Sub LoadOnce()
    RefuseHost
End Sub

Private Function CanWrite(ByVal filePath As String) As Boolean
    RefuseHost
End Function

Public Function LytDiagnose() As String
    LytDiagnose = "Tried: nothing" & vbCrLf & _
        "Reason: " & LibraryName & " is a 64-bit library, and this word processor is a 32-bit program." & vbCrLf & _
        "What to do: Install the 64-bit edition of the word processor."
End Function
#End If

' ---- For a host that is not 64-bit, functions in place of the library's; and their names.

' ---- Begin of what scripts/make-exports writes from src/exports/exports.toml ----
#If Not Win64 Then
Public Sub lytInitialiseEnvironment _
    (ByVal theDocName As String, ByVal theDialogFolder As String, ByVal theInitFolder As String)
    RefuseHost
End Sub
Public Sub lytSetDialogDefine(ByVal theDefine As String)
    RefuseHost
End Sub
Public Function lytGetInitializationPath(ByVal theBuffer As String, ByVal theSize As Long) As Long
    RefuseHost
End Function
Public Function lytGetCurrentDocName(ByVal theBuffer As String, ByVal theSize As Long) As Long
    RefuseHost
End Function
Public Sub FreeGlobalObject()
    RefuseHost
End Sub
Public Function lytSymbolPropertyDialog _
    (ByVal theKey As String, ByVal theResult As String, ByVal theSize As Long) As Long
    RefuseHost
End Function
Public Function lytPhrasePropertyDialog _
    (ByVal theKey As String, ByVal theResult As String, ByVal theSize As Long) As Long
    RefuseHost
End Function
Public Function lytGroupPropertyDialog _
    (ByVal theKind As Long, ByVal theKey As String, ByVal theFirst As String, ByVal theFirstSize As Long, _
     ByVal theSecond As String, ByVal theSecondSize As Long) As Long
    RefuseHost
End Function
Public Function lytOpenTreeView(ByVal theRequest As String, ByVal theTarget As String, ByVal theSize As Long) As Long
    RefuseHost
End Function
Public Function lytOpenTreeViewPara _
    (ByVal theRequest As String, ByVal theTarget As String, ByVal theSize As Long) As Long
    RefuseHost
End Function
Public Function lytGetSymbolfromTree(ByVal theText As String, ByVal theTarget As String, ByVal theSize As Long) As Long
    RefuseHost
End Function
Public Function lytTreeStartChildNode(ByVal theKey As String) As Long
    RefuseHost
End Function
Public Function lytTreeReadChildNode _
    (ByVal theText As String, ByVal theTextSize As Long, ByVal thePath As String, ByVal thePathSize As Long) As Long
    RefuseHost
End Function
Public Function lytGetTextForKey _
    (ByVal theSection As String, ByVal theKey As String, ByVal theArgument As String, ByVal theBuffer As String, _
     ByVal theSize As Long) As Long
    RefuseHost
End Function
Public Function lytGetTextFromIniFile(ByVal thePath As String, ByVal theBuffer As String, ByVal theSize As Long) As Long
    RefuseHost
End Function
Public Function lytListFromIniStart(ByVal thePath As String) As Long
    RefuseHost
End Function
Public Function lytListFromIniNext _
    (ByVal theValue As String, ByVal theValueSize As Long, ByVal theDisplay As String, _
     ByVal theDisplaySize As Long) As Long
    RefuseHost
End Function
Public Sub lytWriteToLogFile(ByVal theText As String, ByVal theLevel As Long)
    RefuseHost
End Sub
Public Function lytWizardNext(ByVal theBuffer As String, ByVal theSize As Long) As Long
    RefuseHost
End Function
Public Function lytSystemInfoInit(ByVal theDirectory As String) As Long
    RefuseHost
End Function
Public Function lytSystemInfoRead(ByVal theIndex As Long, ByVal theTarget As String, ByVal theSize As Long) As Long
    RefuseHost
End Function
#End If

Private Function FunctionNames() As String
    FunctionNames = "lytInitialiseEnvironment,lytSetDialogDefine,lytGetInitializationPath," & _
        "lytGetCurrentDocName,FreeGlobalObject,lytSymbolPropertyDialog," & _
        "lytPhrasePropertyDialog,lytGroupPropertyDialog,lytOpenTreeView," & _
        "lytOpenTreeViewPara,lytGetSymbolfromTree,lytTreeStartChildNode," & _
        "lytTreeReadChildNode,lytGetTextForKey,lytGetTextFromIniFile," & _
        "lytListFromIniStart,lytListFromIniNext,lytWriteToLogFile,lytWizard," & _
        "lytSystemInfoInit,lytSystemInfoRead"
End Function
' ---- End of what scripts/make-exports writes ----
