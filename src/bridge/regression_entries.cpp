// Entries of the regression family.

#include "bridge/arguments.h"
#include "bridge/generated/entries.h"
#include "kavoratb1c/regression/least_squares.h"
#include "kavoratb1c/regression/newton_raphson.h"
#include "regression/design.h"

using namespace kav;

using namespace bridge;

namespace {

constexpr int kNothingToFit = -1;

}  // namespace

int entries::RunOLSBasic(int n, int p, double* X, double* Y, double* w, int iPolyDegree,
                         VARIANT_BOOL iInteract2, VARIANT_BOOL iFixedIntercept, double iTolerance,
                         double* oCoeffs, double* oPredY) {
  if (!hasDesign(n, p, iPolyDegree)) return kNothingToFit;
  const InTable x(X, n, p);
  const InVector y(Y, n), weights(w, n);
  OutTable coefficients(oCoeffs), fitted(oPredY, n, 1);
  OLSBasic(n, p, x, y, weights, iPolyDegree, iInteract2, iFixedIntercept, iTolerance, coefficients, fitted);
  store(coefficients, fitted);
  return 0;
}

int entries::RunOLSBasic2(int n, int p, double* X, double* Y, double* w, int iPolyDegree,
                          VARIANT_BOOL iInteract2, VARIANT_BOOL iFixedIntercept, double iTolerance,
                          double* oCoeffs, double* oStDevCoeffs, double* oPredY) {
  if (!hasDesign(n, p, iPolyDegree)) return kNothingToFit;
  const InTable x(X, n, p);
  const InVector y(Y, n), weights(w, n);
  OutTable coefficients(oCoeffs), errors(oStDevCoeffs), fitted(oPredY, n, 1);
  OLSBasic2(n, p, x, y, weights, iPolyDegree, iInteract2, iFixedIntercept, iTolerance, coefficients, errors,
            fitted);
  store(coefficients, errors, fitted);
  return 0;
}

int entries::NewtonRaphson(double* ioParamVect, int p, int* iConstraints, double* iDeriv1, double* iDeriv2,
                           double iConvergence, double* oStdErrVect, double* InvDeriv2,
                           VARIANT_BOOL Checkchange, double Maxchange) {
  InOutTable parameters(ioParamVect, p, 1), errors(oStdErrVect, p, 1, Cells::KeepAll);
  const InInts excluded(iConstraints, p);
  const InVector gradient(iDeriv1, p);
  const InTable hessian(iDeriv2, p, p);
  OutTable inverse(InvDeriv2, p, p);
  const int status = cNewtonRaphson(parameters, p, excluded, gradient, hessian, iConvergence, errors, inverse,
                                    Checkchange, Maxchange);
  if (status >= 0) store(errors, parameters, inverse);
  return status;
}
