Attribute VB_Name = "Regression"
' Regressions on the selected range, its first row the names, its last column the response. Cells must be numbers.
Option Explicit

' Least squares: estimates, standard errors, tolerances and inflation factors to a new sheet. A column with an estimate
' and an error of 0 has been left out because others say the same.
Public Sub LinearRegression()
    Dim source As Range, n As Long, p As Long, i As Long, j As Long, status As Long
    Set source = Selection
    n = source.Rows.Count - 1
    p = source.Columns.Count - 1
    Dim x() As Double, y() As Double, weights() As Double, excluded() As Boolean
    ReadTable source, n, p, x
    ReadColumn source, n, p + 1, y
    ReDim weights(1 To n): ReDim excluded(1 To n)
    For i = 1 To n
        weights(i) = 1
    Next i

    Dim estimates() As Double, errors() As Double, fitted() As Double
    ReDim estimates(1 To p + 1): ReDim errors(1 To p + 1): ReDim fitted(1 To n)
    status = RunOLSBasic2(n, p, x(1), y(1), weights(1), 1, False, False, 0.000000001, estimates(1), errors(1), fitted(1))
    If status <> 0 Then Exit Sub

    Dim r() As Double, selected(1 To 1) As Long, groups() As Long, codes() As Long
    Dim tolerances() As Double, inflations() As Double
    ReDim r(1 To p * p): ReDim groups(1 To p): ReDim codes(1 To p)
    ReDim tolerances(1 To p): ReDim inflations(1 To p)
    selected(1) = 1
    For j = 1 To p
        groups(j) = 1
        ' One column alone is not compared with others.
        tolerances(j) = 1
        inflations(j) = 1
    Next j
    status = VB_M_CovCorr(x(1), n, p, r(1), True, excluded(1), weights(1), True, True)
    VB_CheckTolerance r(1), p, 1, selected(1), groups(1), groups(1), 0.000000001, False, False, False, codes(1), tolerances(1), inflations(1)

    Dim target As Range
    Set target = Worksheets.Add.Range("A1")
    target.Resize(1, 5).Value = Array("column", "estimate", "standard error", "tolerance", "inflation")
    For j = 1 To p
        If estimates(j) = 0 And errors(j) = 0 Then
            target.Offset(j, 0).Resize(1, 2).Value = Array(source.Cells(1, j).Value, "left out")
        Else
            target.Offset(j, 0).Resize(1, 5).Value = Array(source.Cells(1, j).Value, estimates(j), errors(j), tolerances(j), inflations(j))
        End If
    Next j
    target.Offset(p + 1, 0).Resize(1, 3).Value = Array("intercept", estimates(p + 1), errors(p + 1))
End Sub

' Logistic regression of a response of zeros and ones.
Public Sub LogisticRegression()
    Dim source As Range, n As Long, p As Long, i As Long, j As Long, k As Long
    Set source = Selection
    n = source.Rows.Count - 1
    p = source.Columns.Count
    Dim x() As Double, ones() As Double, design() As Double, y() As Double
    ReadTable source, n, p - 1, x
    ReadColumn source, n, p, y
    ReDim ones(1 To n): ReDim design(1 To n * p)
    For i = 1 To n
        ones(i) = 1
    Next i
    VB_HMergeVectTable ones(1), n, x(1), n, p - 1, design(1)

    Dim b() As Double, errors() As Double, inverse() As Double, constraints() As Long
    Dim g() As Double, h() As Double, status As Long, steps As Long
    ReDim b(1 To p): ReDim errors(1 To p): ReDim inverse(1 To p * p): ReDim constraints(1 To p)
    Do While status = 0 And steps < 50
        ReDim g(1 To p): ReDim h(1 To p * p)
        For i = 1 To n
            Dim sum As Double, probability As Double, weight As Double
            sum = 0
            For j = 1 To p
                sum = sum + b(j) * design(i + (j - 1) * n)
            Next j
            probability = 1 / (1 + Exp(-sum))
            weight = probability * (1 - probability)
            For j = 1 To p
                g(j) = g(j) + (y(i) - probability) * design(i + (j - 1) * n)
                For k = 1 To p
                    h(j + (k - 1) * p) = h(j + (k - 1) * p) - weight * design(i + (j - 1) * n) * design(i + (k - 1) * n)
                Next k
            Next j
        Next i
        status = NewtonRaphson(b(1), p, constraints(1), g(1), h(1), 0.0000000001, errors(1), inverse(1), True, 5)
        steps = steps + 1
    Loop
    If status <> 1 Then
        MsgBox "The regression did not converge."
        Exit Sub
    End If

    Dim target As Range
    Set target = Worksheets.Add.Range("A1")
    target.Resize(1, 3).Value = Array("column", "estimate", "standard error")
    target.Offset(1, 0).Resize(1, 3).Value = Array("intercept", b(1), errors(1))
    For j = 2 To p
        target.Offset(j, 0).Resize(1, 3).Value = Array(source.Cells(1, j - 1).Value, b(j), errors(j))
    Next j
End Sub

' The first p columns as one column-major array.
Private Sub ReadTable(source As Range, n As Long, p As Long, x() As Double)
    Dim i As Long, j As Long
    ReDim x(1 To n * p)
    For j = 1 To p
        For i = 1 To n
            x(i + (j - 1) * n) = source.Cells(i + 1, j).Value
        Next i
    Next j
End Sub

Private Sub ReadColumn(source As Range, n As Long, column As Long, x() As Double)
    Dim i As Long
    ReDim x(1 To n)
    For i = 1 To n
        x(i) = source.Cells(i + 1, column).Value
    Next i
End Sub
