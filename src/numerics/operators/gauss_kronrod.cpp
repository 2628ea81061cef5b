#include "numerics/operators/gauss_kronrod.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace zephyl {

// In the published order: those of the Gauss rule from outside inwards, then the others.
const TNodes TGaussKronrod::pairs[PAIRS] = {
    {0.99689348407464951, 0.003890461127099884, 0.007968192496166605},
    {0.98366812327974718, 0.0092732796595177639, 0.018466468311090958},
    {0.96002186496830755, 0.014369729507045804, 0.028784707883323369},
    {0.92620004742927431, 0.019414141193942382, 0.03879919256962705},
    {0.88256053579205274, 0.0241911620780806, 0.048402672830594053},
    {0.82956576238276836, 0.028754048765041292, 0.057493156217619065},
    {0.76777743210482619, 0.032981447057483723, 0.065974229882180491},
    {0.69785049479331585, 0.03688236465182123, 0.073755974737705204},
    {0.62052618298924289, 0.040374538951535956, 0.080755895229420213},
    {0.53662414814201986, 0.043452539701356069, 0.086899787201082976},
    {0.44703376953808915, 0.04605923827100699, 0.092122522237786122},
    {0.35270472553087812, 0.048185861757087133, 0.096368737174644253},
    {0.25463692616788985, 0.04979568342707421, 0.099593420586795267},
    {0.15386991360858354, 0.05088179589874961, 0.1017623897484055},
    {0.051471842555317698, 0.051426128537459023, 0.10285265289355884},
    {0.9994844100504906, 0.0013890136986770077, 0.0},
    {0.99163099687040457, 0.0066307039159312926, 0.0},
    {0.97311632250112623, 0.011823015253496341, 0.0},
    {0.94437444474856003, 0.016920889189053271, 0.0},
    {0.90557330769990785, 0.021828035821609193, 0.0},
    {0.85720523354606115, 0.026509954882333101, 0.0},
    {0.79972783582183904, 0.030907257562387762, 0.0},
    {0.73379006245322675, 0.034979338028060025, 0.0},
    {0.66006106412662691, 0.038678945624727595, 0.0},
    {0.57934523582636166, 0.041969810215164244, 0.0},
    {0.49248046786177857, 0.044814800133162663, 0.0},
    {0.4004012548303944, 0.047185546569299151, 0.0},
    {0.30407320227362505, 0.049055434555029781, 0.0},
    {0.20452511668230988, 0.050405921402782349, 0.0},
    {0.10280693796673702, 0.051221547849258774, 0.0}};
namespace {

constexpr double centre_weight = 0.051494729429451568;

constexpr double epsilon = std::numeric_limits<double>::epsilon();
constexpr double least = std::numeric_limits<double>::min();

}  // namespace

double TGaussKronrod::start(double a, double b) {
  centre_ = 0.5 * (a + b);
  half_length_ = 0.5 * (b - a);
  count_ = 0;
  return centre_;
}

TRuleResult TGaussKronrod::result() const {
  double gauss = 0.0;
  double kronrod = centre_weight * samples_[0];
  double magnitude = std::fabs(kronrod);
  const double* sample = samples_ + 1;
  for (const TNodes& pair : pairs) {
    const double left = *sample++, right = *sample++;
    gauss += pair.gauss_weight * (left + right);
    kronrod += pair.kronrod_weight * (left + right);
    magnitude += pair.kronrod_weight * (std::fabs(left) + std::fabs(right));
  }
  const double mean = 0.5 * kronrod;
  double deviation = centre_weight * std::fabs(samples_[0] - mean);
  sample = samples_ + 1;
  for (const TNodes& pair : pairs) {
    const double left = *sample++, right = *sample++;
    deviation += pair.kronrod_weight * (std::fabs(left - mean) + std::fabs(right - mean));
  }
  const double length = std::fabs(half_length_);
  TRuleResult rule{kronrod * half_length_, std::fabs((kronrod - gauss) * half_length_), magnitude * length,
                   deviation * length};
  if (rule.deviation != 0.0 && rule.error != 0.0)
    rule.error = rule.deviation * std::min(1.0, std::pow(200.0 * rule.error / rule.deviation, 1.5));
  if (rule.magnitude > least / (50.0 * epsilon))
    rule.error = std::max(epsilon * 50.0 * rule.magnitude, rule.error);
  return rule;
}

}  // namespace zephyl
