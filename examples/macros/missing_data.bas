Attribute VB_Name = "MissingData"
' Fills the empty cells of the selected range, its first row the names, and writes the filled table to a new sheet:
' columns of numbers and columns of labels may stand in any order. Each empty cell gets the cell of the nearest row that
' has it; columns whose first present cell is a text are labels.
Option Explicit

Private Const MISSING As Double = -1.79769313486231E+308

Public Sub FillFromNearestRows()
    Dim source As Range, n As Long, p As Long, i As Long, j As Long
    Set source = Selection
    n = source.Rows.Count - 1
    p = source.Columns.Count
    If n < 1 Then Exit Sub

    ' Which columns are labels, and where each goes: numbers and labels lie in arrays of their own.
    Dim isLabel() As Boolean, place() As Long, numberColumns As Long, labelColumns As Long
    ReDim isLabel(1 To p): ReDim place(1 To p)
    For j = 1 To p
        For i = n To 1 Step -1
            If Not IsEmpty(source.Cells(i + 1, j).Value) Then isLabel(j) = Not IsNumeric(source.Cells(i + 1, j).Value)
        Next i
        If isLabel(j) Then
            labelColumns = labelColumns + 1
            place(j) = labelColumns
        Else
            numberColumns = numberColumns + 1
            place(j) = numberColumns
        End If
    Next j

    ' One cell more, so that there is a first element to pass also without such columns.
    Dim numbers() As Double, labels() As String, none(1 To 1) As Double
    Dim excluded() As Boolean, weights() As Double
    ReDim numbers(1 To n * numberColumns + 1): ReDim labels(1 To n * labelColumns + 1)
    ReDim excluded(1 To n): ReDim weights(1 To n)
    For i = 1 To n
        weights(i) = 1
        For j = 1 To p
            If isLabel(j) Then
                labels(i + (place(j) - 1) * n) = CStr(source.Cells(i + 1, j).Value)
            ElseIf IsEmpty(source.Cells(i + 1, j).Value) Or Not IsNumeric(source.Cells(i + 1, j).Value) Then
                numbers(i + (place(j) - 1) * n) = MISSING
            Else
                numbers(i + (place(j) - 1) * n) = source.Cells(i + 1, j).Value
            End If
        Next j
    Next i

    ' Labels are rewritten: every slot receives a new string, and the former ones are not freed, so the array is used
    ' for one call only.
    VB_EstimateRowsWithMissingNN numbers(1), n, numberColumns, excluded(1), none(1), 0, labels(1), labelColumns, weights(1)

    Dim target As Worksheet
    Set target = Worksheets.Add
    For j = 1 To p
        target.Cells(1, j).Value = source.Cells(1, j).Value
        For i = 1 To n
            If isLabel(j) Then
                target.Cells(i + 1, j).Value = labels(i + (place(j) - 1) * n)
            ElseIf VB_IsMissingValueDbl(numbers(i + (place(j) - 1) * n)) = 0 Then
                target.Cells(i + 1, j).Value = numbers(i + (place(j) - 1) * n)
            End If
        Next i
    Next j
End Sub

' Draws a sample of rows of the selected range, its first row the names, one from each of `size` equal intervals, and
' tells the seed with which it can be drawn again.
Public Sub StratifiedSample()
    Dim source As Range, n As Long, p As Long, i As Long, j As Long, size As Long
    Set source = Selection
    n = source.Rows.Count - 1
    p = source.Columns.Count
    If n < 1 Then Exit Sub
    size = Application.InputBox("Rows in the sample", Type:=1)
    If size < 1 Then Exit Sub

    Dim cellsGiven() As String, sample() As String, positions() As Double
    ReDim cellsGiven(1 To n * p): ReDim sample(1 To size * p): ReDim positions(1 To size)
    For j = 1 To p
        For i = 1 To n
            cellsGiven(i + (j - 1) * n) = CStr(source.Cells(i + 1, j).Value)
        Next i
    Next j

    Dim seed As Long, nextSeed As Long
    VB_M_SamplingRandomStratified cellsGiven(1), n, p, size, sample(1), positions(1), seed, False, nextSeed

    Dim target As Worksheet
    Set target = Worksheets.Add
    target.Cells(1, 1).Value = "row (seed " & seed & ")"
    For j = 1 To p
        target.Cells(1, j + 1).Value = source.Cells(1, j).Value
        For i = 1 To size
            target.Cells(i + 1, j + 1).Value = sample(i + (j - 1) * size)
        Next i
    Next j
    For i = 1 To size
        If VB_IsMissingValueDbl(positions(i)) = 0 Then target.Cells(i + 1, 1).Value = positions(i)
    Next i
End Sub
