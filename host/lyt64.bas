Attribute VB_Name = "lyt64"
' The functions of lyt64.dll for the macros of a template.
'
' Put lyt64.dll into a folder of its own, import this module into the template, and tell it the folder: at run time,
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
' 48, 53 and 453), MsgBox LytDiagnose says why. The functions below them are those of the library, as
' docs/exports.md tells; lytWizard is declared as lytWizardNext, since macros do not tell small letters from capitals.
Option Explicit

' The folder of lyt64.dll, with no backslash at its end; used when LytUseFolder was not called.
Private Const DefaultFolder As String = ""
Private Const LibraryName As String = "lyt64.dll"

' Bytes of a buffer for what a dialog answers: it cannot be asked twice. Other functions are asked again with more room,
' up to that size.
Private Const Room As Long = 65536
Private Const FirstRoom As Long = 256

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
End Enum

Private m_folder As String
Private m_isStarted As Boolean

' ---- Begin of what scripts/make-exports writes from src/exports/exports.toml ----
#If Win64 Then
Public Declare PtrSafe Sub lytInitialiseEnvironment Lib "lyt64.dll" _
    (ByVal docName As String, ByVal dialogFolder As String, ByVal initFolder As String)
Public Declare PtrSafe Sub lytSetDialogDefine Lib "lyt64.dll" (ByVal define As String)
Public Declare PtrSafe Function lytGetInitializationPath Lib "lyt64.dll" _
    (ByVal buffer As String, ByVal size As Long) As Long
Public Declare PtrSafe Function lytGetCurrentDocName Lib "lyt64.dll" _
    (ByVal buffer As String, ByVal size As Long) As Long
Public Declare PtrSafe Sub FreeGlobalObject Lib "lyt64.dll" ()
Public Declare PtrSafe Function lytSymbolPropertyDialog Lib "lyt64.dll" _
    (ByVal key As String, ByVal result As String, ByVal size As Long) As Long
Public Declare PtrSafe Function lytPhrasePropertyDialog Lib "lyt64.dll" _
    (ByVal key As String, ByVal result As String, ByVal size As Long) As Long
Public Declare PtrSafe Function lytGroupPropertyDialog Lib "lyt64.dll" _
    (ByVal kind As Long, ByVal key As String, ByVal first As String, ByVal firstSize As Long, ByVal second As String, _
     ByVal secondSize As Long) As Long
Public Declare PtrSafe Function lytOpenTreeView Lib "lyt64.dll" _
    (ByVal request As String, ByVal target As String, ByVal size As Long) As Long
Public Declare PtrSafe Function lytOpenTreeViewPara Lib "lyt64.dll" _
    (ByVal request As String, ByVal target As String, ByVal size As Long) As Long
Public Declare PtrSafe Function lytGetSymbolfromTree Lib "lyt64.dll" _
    (ByVal text As String, ByVal target As String, ByVal size As Long) As Long
Public Declare PtrSafe Function lytTreeStartChildNode Lib "lyt64.dll" (ByVal key As String) As Long
Public Declare PtrSafe Function lytTreeReadChildNode Lib "lyt64.dll" _
    (ByVal text As String, ByVal textSize As Long, ByVal path As String, ByVal pathSize As Long) As Long
Public Declare PtrSafe Function lytGetTextForKey Lib "lyt64.dll" _
    (ByVal section As String, ByVal key As String, ByVal argument As String, ByVal buffer As String, _
     ByVal size As Long) As Long
Public Declare PtrSafe Function lytGetTextFromIniFile Lib "lyt64.dll" _
    (ByVal path As String, ByVal buffer As String, ByVal size As Long) As Long
Public Declare PtrSafe Function lytListFromIniStart Lib "lyt64.dll" (ByVal path As String) As Long
Public Declare PtrSafe Function lytListFromIniNext Lib "lyt64.dll" _
    (ByVal value As String, ByVal valueSize As Long, ByVal display As String, ByVal displaySize As Long) As Long
Public Declare PtrSafe Sub lytWriteToLogFile Lib "lyt64.dll" (ByVal text As String, ByVal level As Long)
Public Declare PtrSafe Function lytWizardNext Lib "lyt64.dll" Alias "lytWizard" _
    (ByVal buffer As String, ByVal size As Long) As Long
Public Declare PtrSafe Function lytSystemInfoInit Lib "lyt64.dll" (ByVal directory As String) As Long
Public Declare PtrSafe Function lytSystemInfoRead Lib "lyt64.dll" _
    (ByVal index As Long, ByVal target As String, ByVal size As Long) As Long
#End If
' ---- End of what scripts/make-exports writes ----

#If Win64 Then
Private Declare PtrSafe Function LoadLibraryW Lib "kernel32" (ByVal fileName As LongPtr) As LongPtr
Private Declare PtrSafe Function FreeLibrary Lib "kernel32" (ByVal library As LongPtr) As Long
Private Declare PtrSafe Function GetModuleHandleW Lib "kernel32" (ByVal fileName As LongPtr) As LongPtr
Private Declare PtrSafe Function GetModuleFileNameW Lib "kernel32" _
    (ByVal library As LongPtr, ByVal fileName As LongPtr, ByVal size As Long) As Long
Private Declare PtrSafe Function GetProcAddress Lib "kernel32" _
    (ByVal library As LongPtr, ByVal functionName As String) As LongPtr
Private Declare PtrSafe Function GetFileAttributesW Lib "kernel32" (ByVal fileName As LongPtr) As Long
Private Declare PtrSafe Function CreateFileW Lib "kernel32" _
    (ByVal fileName As LongPtr, ByVal rights As Long, ByVal sharing As Long, ByVal security As LongPtr, _
     ByVal disposition As Long, ByVal flags As Long, ByVal pattern As LongPtr) As LongPtr
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
Public Sub LytStart(ByVal document As String, ByVal dialogFolder As String, ByVal initFolder As String, _
                    Optional ByVal defines As String)
    LoadOnce
    lytInitialiseEnvironment document, dialogFolder, initFolder
    If Len(defines) > 0 Then lytSetDialogDefine defines
    m_isStarted = True
End Sub

' Ends a run of calls. The library stays loaded.
Public Sub LytStop()
    If m_isStarted Then FreeGlobalObject
    m_isStarted = False
End Sub

Public Function LytDocument() As String
    Dim buffer As String, size As Long, result As Long
    NeedStart
    size = FirstRoom
    Do
        buffer = Marked(size)
        result = lytGetCurrentDocName(buffer, size)
        size = size * 4
    Loop While result = 0 And size <= Room
    LytDocument = TextOf(buffer)
End Function

Public Function LytInitFolder() As String
    Dim buffer As String, size As Long, result As Long
    NeedStart
    size = FirstRoom
    Do
        buffer = Marked(size)
        result = lytGetInitializationPath(buffer, size)
        size = size * 4
    Loop While result = 0 And size <= Room
    LytInitFolder = TextOf(buffer)
End Function

' ---- Properties of a placeholder: at LytChanged, and only then, the key is the new one. It may be empty. A copy of it is
' passed: what a call is given comes back from the code page of the library, where some characters have no place.

Public Function LytEditSymbol(ByRef key As String) As LytOutcome
    Dim buffer As String, outcome As Long
    NeedStart
    buffer = Marked(Room)
    outcome = lytSymbolPropertyDialog((key), buffer, Room)
    LytEditSymbol = TakeKey(outcome, buffer, key)
End Function

Public Function LytEditPhrase(ByRef key As String) As LytOutcome
    Dim buffer As String, outcome As Long
    NeedStart
    buffer = Marked(Room)
    outcome = lytPhrasePropertyDialog((key), buffer, Room)
    LytEditPhrase = TakeKey(outcome, buffer, key)
End Function

' Kind 0 is a condition, kind 1 a repetition. At LytChanged the second text is the new one as well, unless the dialog
' gave none.
Public Function LytEditGroup(ByVal kind As Long, ByRef key As String, ByRef second As String) As LytOutcome
    Dim first As String, rest As String, size As Long, outcome As Long
    NeedStart
    ' The part of the key that the dialog does not see is put before its result.
    size = Room + Len(key)
    first = Marked(size)
    rest = Marked(size)
    outcome = lytGroupPropertyDialog(kind, (key), first, size, rest, size)
    LytEditGroup = outcome
    If outcome <> LytChanged Then Exit Function
    If IsUntouched(first) Then
        key = ""
    Else
        key = TextOf(first)
    End If
    If Not IsUntouched(rest) Then second = TextOf(rest)
End Function

' ---- New placeholders and the catalogue

' Leads through the choice. The texts to insert are in the collection: one of a symbol or a phrase, several of a group.
' At LytNothing the author cancelled or chose nothing, and there are none.
Public Function LytWizard(ByRef texts As Collection) As LytKind
    Dim buffer As String, kind As Long
    NeedStart
    Set texts = New Collection
    buffer = Marked(Room)
    kind = lytWizardNext(buffer, Room)
    LytWizard = kind
    If kind = LytNothing Then Exit Function
    texts.Add TextOf(buffer)
    If kind = LytGroup Then TakeGroup texts
End Function

' The rest of a group is fetched even if one of its texts did not fit: the next call would bring it otherwise.
Private Sub TakeGroup(ByVal texts As Collection)
    Dim buffer As String, text As String, result As Long, isTooLong As Boolean
    Do
        buffer = Marked(Room)
        result = lytWizardNext(buffer, Room)
        text = TextOf(buffer)
        If result = LytGroup Then
            ' These end with a bar, so that an empty one had no room.
            If Len(text) = 0 Then isTooLong = True Else texts.Add Left$(text, Len(text) - 1)
        ElseIf Not IsUntouched(buffer) Then
            texts.Add text
        End If
    Loop While result = LytGroup
    If isTooLong Then RaiseTooLong
End Sub

' Shows the catalogue. The request is a letter (S a symbol, G a group, P a group of the para tree, W any entry) and what
' is to be selected. False when the author cancelled; the choice is then as it was.
Public Function LytPick(ByVal request As String, ByRef choice As String) As Boolean
    Dim buffer As String
    NeedStart
    buffer = Marked(Room)
    If lytOpenTreeView(request, buffer, Room) <> 1 Then Exit Function
    choice = TextOf(buffer)
    LytPick = True
End Function

' The same in the para tree; what is to be selected is the key of a group.
Public Function LytPickPara(ByVal selected As String, ByRef choice As String) As Boolean
    Dim buffer As String
    NeedStart
    buffer = Marked(Room)
    If lytOpenTreeViewPara("P" & selected, buffer, Room) <> 1 Then Exit Function
    choice = TextOf(buffer)
    LytPickPara = True
End Function

' The first symbol whose key begins so. False when there is none; the key is then as it was.
Public Function LytFindSymbol(ByVal beginning As String, ByRef key As String) As Boolean
    Dim buffer As String, size As Long, result As Long
    NeedStart
    size = FirstRoom
    Do
        buffer = Marked(size)
        result = lytGetSymbolfromTree(beginning, buffer, size)
        size = size * 4
    Loop While result = 1 And Len(TextOf(buffer)) = 0 And size <= Room
    If result <> 1 Then Exit Function
    key = TextOf(buffer)
    LytFindSymbol = True
End Function

' The symbols below a group, once the author has confirmed the catalogue: labels as shown, and of each the key, a
' backslash and the label. False when there is no such group, or nothing follows it.
Public Function LytChildren(ByVal groupKey As String, ByRef labels As Collection, ByRef paths As Collection) As Boolean
    Dim label As String, path As String
    NeedStart
    Set labels = New Collection
    Set paths = New Collection
    If lytTreeStartChildNode(groupKey) <> 1 Then Exit Function
    LytChildren = True
    ' The texts of an entry have 99 characters at most.
    label = Marked(FirstRoom)
    path = Marked(FirstRoom)
    Do While lytTreeReadChildNode(label, FirstRoom, path, FirstRoom) = 1
        labels.Add TextOf(label)
        paths.Add TextOf(path)
        label = Marked(FirstRoom)
        path = Marked(FirstRoom)
    Loop
End Function

' ---- Texts, values, the log and the report

' A text of the language file with the argument inserted; without such a text, the last argument.
Public Function LytText(ByVal section As String, ByVal key As String, Optional ByVal argument As String, _
                        Optional ByVal otherwise As String) As String
    Dim buffer As String, size As Long, result As Long
    NeedStart
    size = FirstRoom
    Do
        buffer = Marked(size)
        result = lytGetTextForKey(section, key, argument, buffer, size)
        size = size * 4
    Loop While result = 1 And Len(TextOf(buffer)) = 0 And size <= Room
    LytText = otherwise
    If result = 1 Then LytText = TextOf(buffer)
End Function

' A value of lyt.ini; without such a key, the last argument.
Public Function LytValue(ByVal section As String, ByVal key As String, Optional ByVal otherwise As String) As String
    Dim buffer As String, size As Long, result As Long
    NeedStart
    size = FirstRoom
    Do
        buffer = Marked(size)
        result = lytGetTextFromIniFile(PathOf(section, key), buffer, size)
        size = size * 4
    Loop While result = 1 And Len(TextOf(buffer)) = 0 And size <= Room
    LytValue = otherwise
    If result = 1 And TextOf(buffer) <> NoEntry Then LytValue = TextOf(buffer)
End Function

' The items of a value of lyt.ini between its commas; without such a key, none.
Public Function LytList(ByVal section As String, ByVal key As String) As Collection
    Dim items As Collection, value As String, display As String
    NeedStart
    Set items = New Collection
    Set LytList = items
    If LytValue(section, key, NoEntry) = NoEntry Then Exit Function
    If lytListFromIniStart(PathOf(section, key)) <> 1 Then Exit Function
    value = Marked(Room)
    display = Marked(Room)
    Do While lytListFromIniNext(value, Room, display, Room) = 1
        items.Add TextOf(value)
        value = Marked(Room)
        display = Marked(Room)
    Loop
End Function

' Writes to the log of the document if lyt.ini asks for messages of that level. False when the log cannot be written:
' the library, left to itself, would raise a failure then that no macro can catch.
Public Function LytLog(ByVal text As String, Optional ByVal level As Long = 1) As Boolean
    Dim asked As Long, document As String
    NeedStart
    LytLog = True
    asked = Val(LytValue("LogLevel", "level", "0"))
    If asked = 0 Or level > asked Then Exit Function
    document = LytDocument()
    ' The log has the name of the document up to its first dot.
    If InStr(document, ".") = 0 Then document = "."
    If CanWrite(Left$(document, InStr(document, ".") - 1) & ".log") Then
        lytWriteToLogFile text, level
    Else
        LytLog = False
    End If
End Function

' The report on this workstation, line by line, with the folder listed in it. Takes its time.
Public Function LytReport(ByVal folder As String) As Collection
    Dim lines As Collection, text As String, index As Long
    NeedStart
    Set lines = New Collection
    Set LytReport = lines
    lytSystemInfoInit folder
    Do While ReadReportLine(index, text)
        lines.Add text
        index = index + 1
    Loop
End Function

Private Function ReadReportLine(ByVal index As Long, ByRef text As String) As Boolean
    Dim buffer As String, size As Long
    size = FirstRoom
    Do
        buffer = Marked(size)
        If lytSystemInfoRead(index, buffer, size) <> 1 Then Exit Function
        text = TextOf(buffer)
        ' A line that fills its buffer was cut.
        If Len(text) < size - 1 Then Exit Do
        size = size * 4
    Loop While size <= Room
    ReadReportLine = True
End Function

' ---- Buffers

' A buffer of a stated size, with one byte more for the functions that write a NUL there. Its first character tells
' whether anything was written.
Private Function Marked(ByVal size As Long) As String
    Marked = Chr$(1) & String$(size, vbNullChar)
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
Private Function TakeKey(ByVal outcome As Long, ByVal buffer As String, ByRef key As String) As LytOutcome
    TakeKey = outcome
    If outcome <> LytChanged Then Exit Function
    If Not IsUntouched(buffer) And Len(TextOf(buffer)) = 0 Then RaiseTooLong
    If TextOf(buffer) = key Then TakeKey = LytUnchanged
    key = TextOf(buffer)
End Function

Private Function PathOf(ByVal section As String, ByVal key As String) As String
    If InStr(section, "/") > 0 Then
        Err.Raise LytErrorArgument, "lyt64", "The section """ & section & """ has a slash, which ends its name."
    End If
    PathOf = section & "/" & key
End Function

Private Sub RaiseTooLong()
    Err.Raise LytErrorTooLong, "lyt64", "The text is longer than " & CStr(Room) & " characters. Shorten it."
End Sub

Private Sub NeedStart()
    If Not m_isStarted Then Err.Raise LytErrorNotStarted, "lyt64", "Call LytStart before any other function of lyt64."
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

' Loads the library from there; 0 when it cannot be loaded, or another copy is loaded under its name already.
Private Function LoadedFrom(ByVal path As String) As LongPtr
    Dim library As LongPtr
    library = LoadLibraryW(StrPtr(path))
    If library = LoadedCopy() Then
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
    Dim path As String
    path = String$(1024, vbNullChar)
    PathOfLoaded = Left$(path, GetModuleFileNameW(LoadedCopy(), StrPtr(path), 1024))
End Function

Private Function IsThere(ByVal path As String) As Boolean
    IsThere = (GetFileAttributesW(StrPtr(path)) <> -1)
End Function

Private Function CanWrite(ByVal path As String) As Boolean
    Const GenericWrite As Long = &H40000000
    Const OpenAlways As Long = 4
    Dim file As LongPtr
    file = CreateFileW(StrPtr(path), GenericWrite, 1, 0, OpenAlways, 0, 0)
    If file = -1 Then Exit Function
    CloseHandle file
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

Private Function Diagnosis(ByVal path As String, ByVal reason As String, ByVal wayOut As String) As String
    Diagnosis = "Tried: " & path & vbCrLf & "Reason: " & reason & vbCrLf & "What to do: " & wayOut
End Function

Private Function DiagnosisOfLoading(ByVal path As String) As String
    Dim library As LongPtr, number As Long
    library = LoadLibraryW(StrPtr(path))
    number = Err.LastDllError
    If library = 0 Then
        DiagnosisOfLoading = DiagnosisOfError(path, number)
    ElseIf library <> LoadedCopy() Then
        FreeLibrary library
        DiagnosisOfLoading = Diagnosis(path, "Another copy is loaded already: " & PathOfLoaded(), _
            "End the word processor and start it again; let every template use the same folder.")
    ElseIf Len(MissingFunction()) > 0 Then
        DiagnosisOfLoading = Diagnosis(path, "This copy has no function " & MissingFunction() & ".", _
            "Replace it by the " & LibraryName & " that this module came with.")
    Else
        DiagnosisOfLoading = Diagnosis(path, "None is left: the library is loaded and has all functions.", _
            "If a function failed, call LytStart before it.")
    End If
End Function

Private Function DiagnosisOfError(ByVal path As String, ByVal number As Long) As String
    Select Case number
    Case 193
        DiagnosisOfError = Diagnosis(path, "The file is damaged, or no 64-bit library.", _
            "Copy the file again from where it was handed out, and compare it with SHA256SUMS there.")
    Case 5
        DiagnosisOfError = Diagnosis(path, "Windows denies access to the file.", _
            "Ask the administrator for the right to read and execute it.")
    Case 126, 127
        DiagnosisOfError = Diagnosis(path, "A library that it needs is missing; it needs only those of Windows.", _
            "Ask the administrator to repair Windows.")
    Case Else
        DiagnosisOfError = Diagnosis(path, "Windows refuses to load it, with error " & CStr(number) & ".", _
            "Look the number up, or ask the administrator; a virus scanner may be at work.")
    End Select
End Function

' The first function that the loaded library should have and does not; empty when it has all.
Private Function MissingFunction() As String
    Dim names As String, comma As Long
    names = FunctionNames() & ","
    Do While Len(names) > 0
        comma = InStr(names, ",")
        If GetProcAddress(LoadedCopy(), Left$(names, comma - 1)) = 0 Then
            MissingFunction = Left$(names, comma - 1)
            Exit Function
        End If
        names = Mid$(names, comma + 1)
    Loop
End Function
#Else
Private Sub LoadOnce()
    RefuseHost
End Sub

Private Function CanWrite(ByVal path As String) As Boolean
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
Public Sub lytInitialiseEnvironment(ByVal docName As String, ByVal dialogFolder As String, ByVal initFolder As String)
    RefuseHost
End Sub
Public Sub lytSetDialogDefine(ByVal define As String)
    RefuseHost
End Sub
Public Function lytGetInitializationPath(ByVal buffer As String, ByVal size As Long) As Long
    RefuseHost
End Function
Public Function lytGetCurrentDocName(ByVal buffer As String, ByVal size As Long) As Long
    RefuseHost
End Function
Public Sub FreeGlobalObject()
    RefuseHost
End Sub
Public Function lytSymbolPropertyDialog(ByVal key As String, ByVal result As String, ByVal size As Long) As Long
    RefuseHost
End Function
Public Function lytPhrasePropertyDialog(ByVal key As String, ByVal result As String, ByVal size As Long) As Long
    RefuseHost
End Function
Public Function lytGroupPropertyDialog _
    (ByVal kind As Long, ByVal key As String, ByVal first As String, ByVal firstSize As Long, ByVal second As String, _
     ByVal secondSize As Long) As Long
    RefuseHost
End Function
Public Function lytOpenTreeView(ByVal request As String, ByVal target As String, ByVal size As Long) As Long
    RefuseHost
End Function
Public Function lytOpenTreeViewPara(ByVal request As String, ByVal target As String, ByVal size As Long) As Long
    RefuseHost
End Function
Public Function lytGetSymbolfromTree(ByVal text As String, ByVal target As String, ByVal size As Long) As Long
    RefuseHost
End Function
Public Function lytTreeStartChildNode(ByVal key As String) As Long
    RefuseHost
End Function
Public Function lytTreeReadChildNode _
    (ByVal text As String, ByVal textSize As Long, ByVal path As String, ByVal pathSize As Long) As Long
    RefuseHost
End Function
Public Function lytGetTextForKey _
    (ByVal section As String, ByVal key As String, ByVal argument As String, ByVal buffer As String, _
     ByVal size As Long) As Long
    RefuseHost
End Function
Public Function lytGetTextFromIniFile(ByVal path As String, ByVal buffer As String, ByVal size As Long) As Long
    RefuseHost
End Function
Public Function lytListFromIniStart(ByVal path As String) As Long
    RefuseHost
End Function
Public Function lytListFromIniNext _
    (ByVal value As String, ByVal valueSize As Long, ByVal display As String, ByVal displaySize As Long) As Long
    RefuseHost
End Function
Public Sub lytWriteToLogFile(ByVal text As String, ByVal level As Long)
    RefuseHost
End Sub
Public Function lytWizardNext(ByVal buffer As String, ByVal size As Long) As Long
    RefuseHost
End Function
Public Function lytSystemInfoInit(ByVal directory As String) As Long
    RefuseHost
End Function
Public Function lytSystemInfoRead(ByVal index As Long, ByVal target As String, ByVal size As Long) As Long
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
