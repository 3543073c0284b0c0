Attribute VB_Name = "PrincipalComponents"
' Principal components of the standardized columns of the selected range, its first row the names. Writes eigenvalues
' and percentages, the vectors, the scores of the rows and their squared cosines to a new sheet. Cells must be numbers.
Option Explicit

Public Sub PrincipalComponents()
    Dim source As Range, n As Long, p As Long, i As Long, j As Long
    Set source = Selection
    n = source.Rows.Count - 1
    p = source.Columns.Count

    ' A table is one array, column-major.
    Dim x() As Double
    ReDim x(1 To n * p)
    For j = 1 To p
        For i = 1 To n
            x(i + (j - 1) * n) = source.Cells(i + 1, j).Value
        Next i
    Next j

    Dim r() As Double, values() As Double, vectors() As Double, percent() As Double
    Dim scores() As Double, cosines() As Double, weights() As Double, excluded() As Boolean
    ReDim r(1 To p * p): ReDim values(1 To p): ReDim vectors(1 To p * p): ReDim percent(1 To p)
    ReDim scores(1 To n * p): ReDim cosines(1 To n * p): ReDim weights(1 To n): ReDim excluded(1 To n)
    For i = 1 To n
        weights(i) = 1
    Next i

    Dim kept As Long, axes As Long, status As Long
    VB_M_Standardize2 x(1), n, p, True
    status = VB_M_CovCorr(x(1), n, p, r(1), True, excluded(1), weights(1), True, True)
    status = VB_M_Eigen(r(1), values(1), vectors(1), p, True)
    If status <> 0 Then
        MsgBox "An eigenvalue was not found."
        Exit Sub
    End If
    VB_FilterEigen values(1), p, True, 0.000000000001, 0, 0, 1, kept, axes, percent(1)
    status = VB_M_ProductAB(x(1), n, p, vectors(1), p, scores(1))
    ComputeCosines scores(1), n, p, cosines(1)

    Dim target As Range
    Set target = Worksheets.Add.Range("A1")
    target.Resize(1, 3).Value = Array("component", "eigenvalue", "percent")
    For j = 1 To p
        target.Offset(j, 0).Resize(1, 3).Value = Array(j, values(j), percent(j))
    Next j
    WriteColumns target.Offset(p + 2, 0), "vectors", vectors, p, axes
    WriteColumns target.Offset(2 * p + 4, 0), "scores", scores, n, axes
    WriteColumns target.Offset(2 * p + n + 6, 0), "squared cosines", cosines, n, axes
End Sub

Private Sub WriteColumns(target As Range, title As String, cells() As Double, rows As Long, columns As Long)
    Dim i As Long, j As Long
    target.Value = title
    For j = 1 To columns
        For i = 1 To rows
            target.Offset(i, j).Value = cells(i + (j - 1) * rows)
        Next i
    Next j
End Sub
